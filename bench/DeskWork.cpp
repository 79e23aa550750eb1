#include "bench/DeskWork.h"

#include <algorithm>

#include "bench/BenchFirm.h"
#include "host/controls/CButtonBar.h"
#include "host/controls/CGridPlus.h"
#include "host/values/Text.h"

namespace quillon::bench {

namespace {

constexpr int kClearedOn = 27;
constexpr int kDate = 8;
constexpr int kNarration = 11;
constexpr int kManyRows = 1000;

/// In the markings.
constexpr int kClearDate = 2;
constexpr int kChequeNo = 3;

Desk::Options Settings() {
  Desk::Options options;
  options.Area = {0, 0, 20490, 10500};
  return options;
}

}  // namespace

void DeskWork::Runtime::TellError(const std::string& routine, Form* /*form*/, const std::exception& error) {
  throw HostError(routine + ": " + error.what());
}

int DeskWork::Runtime::AskMessage(const MessageRequest& request) {
  if (!Confirms || request.Buttons.size() != 2) throw HostError(request.Text);
  return 1;
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
  CloseGraph();
  CloseWorkbench();
  if (markings_) runtime_.Unload(*markings_);
  markings_.reset();
  if (statement_) runtime_.Unload(*statement_);
  statement_.reset();
}

void DeskWork::OpenStatement() {
  statement_ = gApp->GetForm("Account");
  statement_->Set("AccountCode", kBank);
  gApp->ShowForm(statement_);
}

void DeskWork::ReadyStatement() {
  CloseGraph();
  CloseWorkbench();
  if (!statement_) OpenStatement();
}

void DeskWork::OpenWorkbench() {
  Press(*statement_, "Reconciliation");
  workbench_ = runtime_.ActiveForm();
  view_ = View::Entries;
  references_ = true;
}

void DeskWork::CloseWorkbench() {
  if (workbench_) runtime_.Unload(*workbench_);
  workbench_.reset();
}

void DeskWork::OpenGraph() {
  runtime_.NextCommand = [this] {
    runtime_.PickFromMenu("Graph");
    return true;
  };
  Press(*statement_, "Others");
  runtime_.NextCommand = nullptr;
  graph_ = runtime_.ActiveForm();
}

void DeskWork::CloseGraph() {
  if (graph_) runtime_.Unload(*graph_);
  graph_.reset();
}

void DeskWork::ReadyEntries() {
  if (workbench_ && view_ == View::Entries) return;
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

void DeskWork::MassMark(bool unmark) {
  const auto& grid = dynamic_cast<CGridPlus&>(workbench_->ControlAt("Grid"));
  const int last = std::min(kManyRows, grid.Rows - 1);
  runtime_.Laid.Add(
      {{"to", "date"}, {"date1", grid.TextMatrix(1, kDate)}, {"date2", grid.TextMatrix(last, kDate)}});
  runtime_.Confirms = true;
  workbench_->Call("MassMarking", {unmark});
  runtime_.Confirms = false;
}

void DeskWork::ReadyMassMarking() {
  ReadyEntries();
  MassMark(true);
}

void DeskWork::ReadyMarkings() {
  if (markings_) return;
  ReadyStatement();
  Press(*statement_, "Marking");
  markings_ = runtime_.ActiveForm();
}

void DeskWork::LookUpCheque() {
  constexpr int kCleared = 10;  // of ten entries the first has a date
  constexpr int kTried = 64;
  const auto& entries = dynamic_cast<CGridPlus&>(statement_->ControlAt("Grid"));
  const int entry = 1 + kCleared * (lookedUp_++ % kTried);
  const std::vector<std::string> words = text::Split(entries.TextMatrix(entry, kNarration), " ");
  auto& grid = dynamic_cast<CGridPlus&>(markings_->ControlAt("Grid"));
  Press(*markings_, "Clear");
  const auto type = [&](int column, const std::string& typed) {
    grid.UserEnterCell(1, column);
    grid.UserType(typed);
    if (!grid.UserLeaveCell()) throw HostError("Refused: " + typed);
  };
  type(kClearDate, entries.TextMatrix(entry, kDate));
  type(kChequeNo, words.at(2));
  runtime_.DeliverKeys();
}

void DeskWork::ReadyView(View view, bool references) {
  if (!workbench_ || view_ != view) {
    ReadyEntries();
    if (view == View::Reconciliation) runtime_.Laid.Add({{"to", "date"}, {"date1", "31-Mar-2025"}});
    Press(*workbench_, view == View::Reconciliation ? "Statement" : "PassBook");
    view_ = view;
  }
  if (references_ != references) PressReferences();
}

void DeskWork::PressReferences() {
  Press(*workbench_, "ShowRef");
  references_ = !references_;
}

void DeskWork::ShowInterest() {
  runtime_.NextCommand = [this] {
    runtime_.ActiveForm()->UserKey(keys::kF7, 0, 0);
    return true;
  };
  Press(*workbench_, "Interest");
  runtime_.NextCommand = nullptr;
  view_ = View::Interest;
}

}  // namespace quillon::bench
