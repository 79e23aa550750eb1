#include "module/CQuillonModule.h"

#include <exception>

#include "cheques/ChequesForms.h"
#include "correspondence/CorrespondenceForms.h"
#include "entry/EntryForms.h"
#include "envelopes/EnvelopesForms.h"
#include "graph/GraphForms.h"
#include "host/forms/Runtime.h"
#include "host/services/IApp.h"
#include "host/values/Text.h"
#include "maintenance/MaintenanceForms.h"
#include "reconciliation/ReconciliationForms.h"

namespace quillon {

namespace {

/// The subsystems' own lists of form keys.
std::span<const FormKey> (*const kFormKeys[])() = {ReconciliationForms, ChequesForms, EnvelopesForms,
                                                   CorrespondenceForms, GraphForms,   MaintenanceForms,
                                                   EntryForms};

struct MenuKey {
  const char* menu;
  const char* form;
};

/// The items of the host's main menu that are ours; their case counts.
constexpr MenuKey kMenuKeys[] = {
    {"AddLabels", "addresslabels"},
    {"MailMerge", "mailmerge"},
    {"Envelopes", "envelopeprint"},
};

}  // namespace

CQuillonModule::~CQuillonModule() { Disconnect(); }

void CQuillonModule::Init(HostApp& quillonApp) {
  Disconnect();
  mQuillon_ = &quillonApp;
  mQuillon_->MainMenuClick.Connect(this,
                                   [this](const std::string& key, bool&) { mQuillon_MainMenuClick(key); });
}

void CQuillonModule::Disconnect() {
  if (mQuillon_ != nullptr) mQuillon_->MainMenuClick.Disconnect(this);
  mQuillon_ = nullptr;
}

void CQuillonModule::Terminate() {
  for (const FormPtr& form : gRuntime->Forms(Form::Origin::Module)) {
    try {
      gRuntime->Unload(*form);
    } catch (const std::exception&) {
      // A form that fails to close must not keep the others open.
      continue;
    }
  }
  Disconnect();
}

std::string CQuillonModule::ID() const { return "DutyworksModule"; }

std::string CQuillonModule::Description() const { return QUILLON_DESCRIPTION; }

FormPtr CQuillonModule::GetForm(const std::string& formName) {
  const std::string wanted = text::Lower(formName);
  for (const auto keysOf : kFormKeys) {
    for (const FormKey& known : keysOf()) {
      if (wanted == known.Key) return known.Make();
    }
  }
  return nullptr;
}

std::int16_t CQuillonModule::RunProc(const std::string& /*procName*/, const std::string& /*argument*/) {
  return 0;
}

void CQuillonModule::mQuillon_MainMenuClick(const std::string& btnKey) {
  for (const MenuKey& item : kMenuKeys) {
    if (btnKey != item.menu) continue;
    const FormPtr form = GetForm(item.form);
    if (!form) return;
    form->CallingForm = gApp->MainWindow().MainForm();
    gApp->ShowForm(form);
  }
}

}  // namespace quillon

extern "C" quillon::IModule* CreateQuillonModule() { return new quillon::CQuillonModule(); }
