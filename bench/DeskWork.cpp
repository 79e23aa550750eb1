#include "bench/DeskWork.h"

#include "bench/BenchFirm.h"
#include "host/CButtonBar.h"
#include "host/CGridPlus.h"

namespace quillon::bench {

namespace {

constexpr int kClearedOn = 27;

Desk::Options Settings() {
  Desk::Options options;
  options.Area = {0, 0, 20490, 10500};
  return options;
}

}  // namespace

void DeskWork::Runtime::TellError(const std::string& routine, Form* /*form*/, const std::string& text) {
  throw HostError(routine + ": " + text);
}

DeskWork::DeskWork(const std::filesystem::path& firm)
    : runtime_(log_, std::filesystem::temp_directory_path()), desk_(Settings()) {
  desk_.OpenFirm(firm);
}

FirebirdLink& DeskWork::Year() { return dynamic_cast<FirebirdLink&>(desk_.Session().MainDb()); }

FirebirdLink& DeskWork::Common() { return dynamic_cast<FirebirdLink&>(desk_.Session().CommonDb()); }

void DeskWork::Press(Form& form, const char* button) {
  dynamic_cast<CButtonBar&>(form.ControlAt("BtnBar1")).UserPress(button);
}

void DeskWork::CloseForms() {
  CloseWorkbench();
  if (statement_) runtime_.Unload(*statement_);
  statement_.reset();
}

void DeskWork::OpenStatement() {
  statement_ = gApp->GetForm("Account");
  statement_->Set("AccountCode", kBank);
  gApp->ShowForm(statement_);
}

void DeskWork::ReadyStatement() {
  CloseWorkbench();
  if (!statement_) OpenStatement();
}

void DeskWork::OpenWorkbench() {
  Press(*statement_, "Reconciliation");
  workbench_ = runtime_.ActiveForm();
  inView_ = false;
  references_ = true;
}

void DeskWork::CloseWorkbench() {
  if (workbench_) runtime_.Unload(*workbench_);
  workbench_.reset();
}

void DeskWork::ReadyEntries() {
  if (workbench_ && !inView_) return;
  ReadyStatement();
  OpenWorkbench();
}

void DeskWork::StoreDate() {
  auto& grid = dynamic_cast<CGridPlus&>(workbench_->ControlAt("Grid"));
  const int pass = stored_ / kRows;
  grid.UserEnterCell(1 + stored_++ % kRows, kClearedOn);
  grid.UserType(pass % 2 == 0 ? "15" : "16");
  grid.UserLeaveCell();
}

void DeskWork::ReadyView(bool references) {
  if (!workbench_ || !inView_) {
    ReadyEntries();
    runtime_.Laid.Add({{"to", "date"}, {"date1", "31-Mar-2025"}});
    Press(*workbench_, "Statement");
    inView_ = true;
  }
  if (references_ != references) PressReferences();
}

void DeskWork::PressReferences() {
  Press(*workbench_, "ShowRef");
  references_ = !references_;
}

}  // namespace quillon::bench
