#include "reconciliation/frmAcReconciliation.h"

#include <algorithm>
#include <iterator>

#include "books/SqlText.h"
#include "host/services/host_services.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmAcReconciliation",
    .caption = "   Reconciliation",
    .titleSuffix = " -> Reconciliation",
    .rightKey = "acst.reconciliation",
    .registerTitle = "Reconciliation",
    .iconKey = "AcStatement",
    .firstKey = keys::kF3,
    .lastKey = keys::kF9,
    .helpContext = 2,
};

constexpr int kMassMark = 0;
constexpr int kShowRef = 1;
constexpr int kStatement = 3;
constexpr int kPassBook = 4;

constexpr int kUnmarkItem = 1;

}  // namespace

frmAcReconciliation::frmAcReconciliation()
    : ScreenForm(kScreen, Origin::Module),
      lblTitle1(*this, "lblTitle1", {0, 1, 2}),
      lblTitle2(*this, "lblTitle2"),
      chkReturned(*this, "chkReturned"),
      cmbFilter(*this, "cmbFilter"),
      Grid(*this, "Grid"),
      GridStatement(*this, "GridStatement"),
      GridPBook(*this, "GridPBook"),
      GridIntt(*this, "GridIntt"),
      MStrip2(*this, "MStrip2"),
      mmMarking(*this, "mmMarking"),
      account_(*this, AccountCode, Date1, Date2, MStrip2),
      entries_(account_, Grid, cmbFilter, chkReturned, lblTitle2),
      statement_(account_, GridStatement),
      passBook_(account_, GridPBook),
      interest_(account_, GridIntt) {
  MemberPeriod(*this);
  Member("bCalcInt", bCalcInt);
  RegisterRoutines();
  statement_.DateStored = [this](const ClearedDates::Change& change) { entries_.TakeStored({change}); };
  mmMarking.Click = [this](int item) { MassMarking(item == kUnmarkItem); };
  for (CGridPlus* const dated : {&Grid, &GridStatement}) {
    dated->Undo = [this] { ShowTurned(account_.Dates.TakeBack(gSession->Year().Db()), "taken back"); };
    dated->Redo = [this] { ShowTurned(account_.Dates.PutBack(gSession->Year().Db()), "put back"); };
  }
}

/// The routines that a host may call late.
void frmAcReconciliation::RegisterRoutines() {
  Routine("UpdateGrid", &frmAcReconciliation::UpdateGrid);
  Routine("UpdateMarkedTotals", &frmAcReconciliation::UpdateMarkedTotals);
  Routine("UpdateGridStatement", &frmAcReconciliation::UpdateGridStatement);
  Routine("UpdateGridPassBook", &frmAcReconciliation::UpdateGridPassBook);
  Routine("HideGrids", &frmAcReconciliation::HideGrids);
  Routine("UpdateRefButton", &frmAcReconciliation::UpdateRefButton);
  Routine("ZoomRow", &frmAcReconciliation::ZoomRow);
  Routine("SaveRow", &frmAcReconciliation::SaveRow);
  Routine("SaveStatementRow", &frmAcReconciliation::SaveStatementRow);
  Routine("RunInterest", &frmAcReconciliation::RunInterest);
  Routine("MassMarking", &frmAcReconciliation::MassMarking);
  Routine("Filter", &frmAcReconciliation::Filter);
  Routine("CalcInterest", &frmAcReconciliation::CalcInterest);
}

void frmAcReconciliation::TakeCaller() {
  if (!CallingForm) return;
  AccountCode = CallingForm->Get("AccountCode").ToInteger();
  Date1 = CallingForm->Get("Date1").ToDate();
  Date2 = CallingForm->Get("Date2").ToDate();
  account_.StandOn(dynamic_cast<CGridPlus&>(CallingForm->ControlAt("Grid")));
  for (const int item : {1, 2}) {
    lblTitle1(item).Caption = dynamic_cast<Label&>(CallingForm->ControlAt("lblTitle1", item)).Caption();
  }
}

void frmAcReconciliation::LoadScreen() {
  DesignControls();
  account_.ShowsReferences = true;
  lblTitle1(0).Caption = "   Reconciliation";
  TakeCaller();
  MStrip1.Code = AccountCode;
  if (!bCalcInt) {
    entries_.FillFilter();
    UpdateGrid();
  } else {
    Grid.Rows = 1;
  }
  interest_.ReadTerms();
  interest_.SetSource(account_.Statement(), false);
  statement_.SetAsOn(Date2);
}

void frmAcReconciliation::FirstShow() {
  if (!bCalcInt) {
    entries_.PutCursorOnLastRow();
    return;
  }
  GridIntt.Visible = false;
  HideGrids();
  RunInterest();
  if (IsLoaded() && !GridIntt.Visible) gRuntime->Unload(*this);
}

void frmAcReconciliation::UnloadScreen() {
  interest_.LetGo();
  entries_.LetGo();
  account_.LetGo();
}

/// The dates that came back go to both views and to the calling statement, rows that a filter hides included.
void frmAcReconciliation::ShowTurned(const std::optional<ClearedDates::Outcome>& outcome, const char* done) {
  if (outcome) {
    entries_.TakeStored(outcome->Done);
    UpdateMarkedTotals();
    if (statement_.IsShown()) statement_.TakeStored(outcome->Done);
  }
  gRuntime->Say(WordsOf(outcome, done));
}

// --- The views

void frmAcReconciliation::UpdateGrid() {
  entries_.Update();
  if (CallingForm) lblTitle2.Caption = dynamic_cast<Label&>(CallingForm->ControlAt("lblTitle2")).Caption();
}

void frmAcReconciliation::UpdateMarkedTotals() { entries_.UpdateMarkedTotals(); }

void frmAcReconciliation::SaveRow(int row, const std::string& dateText) { entries_.Save(row, dateText); }

void frmAcReconciliation::SaveStatementRow(int row, const std::string& dateText) {
  statement_.Save(row, dateText);
}

void frmAcReconciliation::UpdateGridStatement() {
  RequireAllViews();
  statement_.Update();
  ShowView(statement_, "Statement");
}

void frmAcReconciliation::UpdateGridPassBook() {
  RequireAllViews();
  passBook_.Update();
  interest_.SetSource(&GridPBook, true);
  ShowView(passBook_, "PassBook");
}

/// The view's grid takes the place of all others, and its button has nothing more to open.
void frmAcReconciliation::ShowView(WorkbenchView& view, const char* button) {
  entries_.Hide();
  for (CGridPlus* grid : {&GridStatement, &GridPBook, &GridIntt}) {
    if (grid != &view.Grid()) grid->Visible = false;
  }
  view.Grid().Visible = true;
  view.Grid().SetFocus();
  view.ShowOtherSide();
  BtnBar1.Buttons(button).SetEnabled(false);
  UpdateRefButton();
}

void frmAcReconciliation::RequireAllViews() const {
  if (bCalcInt) throw HostError("This window shows the interest alone");
}

WorkbenchView* frmAcReconciliation::VisibleView() const {
  const auto shown = std::find_if(std::begin(views_), std::end(views_),
                                  [](const WorkbenchView* view) { return view->IsShown(); });
  return shown == std::end(views_) ? nullptr : *shown;
}

const CGridPlus* frmAcReconciliation::PrintedGrid() const {
  const WorkbenchView* const view = VisibleView();
  return view != nullptr ? &view->Grid() : nullptr;
}

void frmAcReconciliation::HideGrids() {
  entries_.Hide();
  GridIntt.Visible = false;
  GridPBook.Visible = false;
  GridStatement.Visible = false;
  BtnBar1.EnableButtons({0, 1, 2, 3});
  if (bCalcInt) BtnBar1.DisableButtons({kMassMark, kStatement, kPassBook});
}

void frmAcReconciliation::UpdateRefButton() {
  const bool references = GridPBook.Visible || GridStatement.Visible;
  CButtonBar::Button& button = BtnBar1.Buttons(kShowRef);
  button.SetPicture(references ? gApp->GetPicture("Customers") : "");
  button.SetCaption(!references ? "" : account_.ShowsReferences ? "F4: Hide Ref." : "F4: Show Ref.");
  button.SetKey(references ? "ShowRef" : "");
}

void frmAcReconciliation::ZoomRow() {
  if (WorkbenchView* const view = VisibleView(); view != nullptr) view->ZoomRow();
}

void frmAcReconciliation::ShowEntries() {
  HideGrids();
  entries_.Show();
  entries_.ShowOtherSide();
  interest_.SetSource(account_.Statement(), false);
  BtnBar1.EnableButtons({0, 1, 2, 3, 4, 5});
  UpdateRefButton();
}

// --- The buttons

void frmAcReconciliation::Pressed(const std::string& key) {
  if (key == "MassMarking") {
    PopupMarking();
  } else if (key == "ShowRef") {
    ShowReferences();
  } else if (key == "Interest") {
    PressInterest();
  } else if (key == "Statement") {
    AskStatement();
  } else if (key == "PassBook") {
    HideGrids();
    UpdateGridPassBook();
  } else if (key == "Filter") {
    Filter();
  } else if (key == "Master") {
    int code = 'M';
    int shift = keys::kCtrl;
    gApp->FormKeyDown(code, shift, *this);
  }
}

/// A date that is being typed is stored first, so that the view that is asked for has it.
bool frmAcReconciliation::EndEditing() {
  WorkbenchView* const view = VisibleView();
  return view == nullptr || view->Grid().EndEdit();
}

void frmAcReconciliation::ExitPressed(bool& cancel) {
  if (GridStatement.EditMode()) {
    GridStatement.CancelEdit();
    GridStatement.SetFocus();
    cancel = true;
    return;
  }
  const bool inView = GridStatement.Visible || GridPBook.Visible || GridIntt.Visible;
  if (bCalcInt || !inView) return;
  ShowEntries();
  cancel = true;
}

/// A date that is being typed is stored; one that cannot be keeps the screen open.
void frmAcReconciliation::OnQueryUnload(bool& cancel, UnloadMode /*mode*/) { cancel = !EndEditing(); }

void frmAcReconciliation::PopupMarking() {
  PopupMenu(mmMarking, BtnBar1.Left + BtnBar1.Buttons("MassMarking").Left(), BtnBar1.Top);
}

void frmAcReconciliation::MassMarking(bool unmark) { entries_.MassMark(unmark); }

void frmAcReconciliation::Filter() { entries_.Filter(); }

void frmAcReconciliation::ShowReferences() {
  account_.ShowsReferences = !account_.ShowsReferences;
  if (GridStatement.Visible) UpdateGridStatement();
  if (GridPBook.Visible) UpdateGridPassBook();
}

void frmAcReconciliation::AskStatement() {
  if (!statement_.AskDate()) return;
  HideGrids();
  UpdateGridStatement();
}

void frmAcReconciliation::PressInterest() {
  if (!GridPBook.Visible) {
    gStd->MsgBox("Click on 'F7: Pass Book' option to calculate interest as charged / paid by bank.", "", "W");
    return;
  }
  const FormPtr alive = Self();
  RunInterest();
  UpdateRefButton();
}

void frmAcReconciliation::RunInterest() {
  const FormPtr alive = Self();
  if (!interest_.Ask()) return;
  HideGrids();
  UpdateGridInterest(*interest_.Source());
  GridIntt.BackColor = interest_.Source()->BackColor();
  GridIntt.SetFocus();
}

void frmAcReconciliation::UpdateGridInterest(const CGridPlus& source) {
  interest_.Update(source);
  ShowView(interest_, "Interest");
}

Amount frmAcReconciliation::CalcInterest(Amount product) { return interest_.CalcInterest(product); }

void frmAcReconciliation::Print(bool print) {
  WorkbenchView* const view = VisibleView();
  if (view == nullptr) return;
  CReportOptions options;
  options.DataRS.Open("select * from famaster where mcd=" + books::SqlNumber(AccountCode),
                      gSession->MainDb());
  options.SetOption("MainHeadForm1", "AcMain1");
  options.SetOption("MainHeadForm2", "AcMain2");
  options.SetOption("SubHeadForm1", "AcSubHead1");
  options.SetOption("SubHeadForm2", "AcSubHead2");
  if (view == &statement_ || view == &passBook_) options.SetOption("BalColID", "6");
  view->Report(options, lblTitle1(2).Caption, print);
}

}  // namespace quillon
