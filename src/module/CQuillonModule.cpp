#include "module/CQuillonModule.h"

#include <exception>

#include "cheques/frmChqRetReport.h"
#include "host/IApp.h"
#include "host/Runtime.h"
#include "host/Text.h"
#include "reconciliation/frmAcReconciliation.h"
#include "reconciliation/frmAcReconciliationMark.h"
#include "reconciliation/frmInttMethod.h"

namespace quillon {

namespace {

template <class T>
FormPtr Make() {
  return std::make_shared<T>();
}

struct FormKey {
  const char* key;
  FormPtr (*make)();
};

/// The keys of GetForm, in lower case.
constexpr FormKey kFormKeys[] = {
    {"acreconciliation", Make<frmAcReconciliation>},
    {"acreconciliationmark", Make<frmAcReconciliationMark>},
    {"inttmethod", Make<frmInttMethod>},
    {"chqretreport", Make<frmChqRetReport>},
};

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
  for (const FormKey& known : kFormKeys) {
    if (wanted == known.key) return known.make();
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
