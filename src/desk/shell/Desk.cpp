#include "desk/shell/Desk.h"

#include "desk/firm/BulkTurn.h"
#include "desk/safety/GoingBack.h"
#include "desk/screens/BulkWork.h"
#include "desk/screens/OutgoingLeaves.h"
#include "desk/shell/ModuleLibrary.h"
#include "host/forms/Runtime.h"
#include "host/values/Text.h"

namespace quillon {

Desk::Desk(Options options)
    : options_(std::move(options)),
      reports_({.OutputFolder = options_.OutputFolder,
                .Mode = [this] { return PrinterMode(); },
                .Observer = options_.Reports}),
      module_(ModuleLibrary::Create(options_.ModulePath)) {
  gReports = &reports_;
}

Desk::~Desk() {
  CloseFirm();
  gReports = nullptr;
}

int Desk::PrinterMode() const {
  return app_ ? static_cast<int>(ValInteger(app_->GetUserSetting("PrinterMode"))) : 0;
}

void Desk::OpenFirm(const std::string& folder, const std::string& user, int startYear,
                    const std::string& takeOver) {
  auto next = std::make_unique<DeskSession>(folder, user, startYear, options_.Sql, takeOver);
  CloseFirm();
  session_ = std::move(next);
  session_->Begin();
  session_->SetArea(options_.Area);
  session_->CopiesBulkWork = options_.CopiesBulkWork;
  session_->RunTrial = RunTrial;
  session_->ShowCopy = ShowCopy;
  session_->OnGoBack = [this](int run) {
    if (OnGoBack) OnGoBack(run);
  };
  screens_ = std::make_unique<DeskScreens>();
  app_ = std::make_unique<DeskApp>(*session_, *screens_);
  session_->AddModule(module_->ID(), *module_);
  unfinished_ = std::make_unique<UnfinishedWork>(*session_);
  module_->Init(app_->MainWindow());
  menu_ = std::make_unique<DeskMenu>(*module_, *session_);
  // What a program that was killed has left is asked about before anybody works on.
  gRuntime->Act([this] {
    OutgoingLeaves(session_->MainDb()).AskAll();
    TellBrokenOffRuns(*session_);
  });
}

void Desk::GoBack(int run) {
  const std::string folder = session_->Books().Folder().string();
  const std::string name = session_->CurrentUser().Name;
  const std::string user = session_->UserToOpenWith();
  const int year = session_->Year().StartYear();
  CloseFirm();
  std::exception_ptr failed;
  try {
    const std::unique_ptr<Firm> firm = Firm::Open(folder);
    GoingBack(*firm, run, name).Do();
  } catch (const HostError&) {
    failed = std::current_exception();
  }
  OpenFirm(folder, user, year);
  if (failed) std::rethrow_exception(failed);
}

std::string Desk::WhoAsksToLeave() {
  if (!session_) return {};
  const auto other = BulkTurn::AsksToLeave(*session_->Books().Common());
  return other ? other->Words() : "";
}

void Desk::CloseFirm() {
  if (!session_) return;
  unfinished_->UndoAll();
  const Runtime::Closing closing(*gRuntime, gRuntime->AllForms());
  module_->Terminate();
  for (const FormPtr& form : gRuntime->AllForms()) {
    try {
      gRuntime->Unload(*form);
    } catch (const std::exception& error) {
      gRuntime->TellError("", form.get(), error);
    }
  }
  menu_.reset();
  unfinished_.reset();
  app_.reset();
  screens_.reset();
  session_.reset();
}

}  // namespace quillon
