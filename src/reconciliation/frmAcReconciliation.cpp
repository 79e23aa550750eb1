#include "reconciliation/frmAcReconciliation.h"

#include <optional>

#include "books/SqlText.h"
#include "host/controls/RedrawHold.h"
#include "host/forms/Busy.h"
#include "host/forms/CAlertLog.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

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
    .lastKey = keys::kF3 + 6,
};

constexpr int kShowRef = 1;

/// The statement's closing line belongs to the statement itself, so it prints as its last row and not as a
/// footer.
class FooterAsLastRow {
 public:
  explicit FooterAsLastRow(CGridPlus& grid) : hold_(grid), grid_(grid), row_(grid.Rows) {
    grid_.Rows = row_ + 1;
    for (int col = 0; col < grid_.Cols; ++col)
      grid_.SetTextMatrix(row_, col, grid_.Footer.TextMatrix(0, col));
  }
  FooterAsLastRow(const FooterAsLastRow&) = delete;
  FooterAsLastRow& operator=(const FooterAsLastRow&) = delete;
  ~FooterAsLastRow() { grid_.Rows = row_; }

 private:
  RedrawHold hold_;
  CGridPlus& grid_;
  int row_;
};

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
      mmMarking(*this, "mmMarking") {
  Member("AccountCode", AccountCode);
  Member("Date1", Date1);
  Member("Date2", Date2);
  Member("bCalcInt", bCalcInt);
  RegisterRoutines();
  ConnectGrid();
  ConnectStatement();
  ConnectPassBook();
  chkReturned.Click = [this] { chkReturned_Click(); };
  cmbFilter.Click = [this] { cmbFilter_Click(); };
  mmMarking.Click = [this](int item) { mMarking_Click(item); };
}

/// The routines that a host may call late.
void frmAcReconciliation::RegisterRoutines() {
  const auto routine = [this](const char* name, void (frmAcReconciliation::*body)()) {
    Method(name, [this, body](const Array&) {
      (this->*body)();
      return Variant();
    });
  };
  routine("UpdateGrid", &frmAcReconciliation::UpdateGrid);
  routine("UpdateMarkedTotals", &frmAcReconciliation::UpdateMarkedTotals);
  routine("UpdateGridStatement", &frmAcReconciliation::UpdateGridStatement);
  routine("UpdateGridPassBook", &frmAcReconciliation::UpdateGridPassBook);
  routine("HideGrids", &frmAcReconciliation::HideGrids);
  routine("UpdateRefButton", &frmAcReconciliation::UpdateRefButton);
  routine("ZoomRow", &frmAcReconciliation::ZoomRow);
  const auto save = [this](const char* name, Save body) {
    Method(name, [this, body](const Array& arguments) {
      (this->*body)(static_cast<int>(arguments.at(0).ToInteger()), arguments.at(1).ToText());
      return Variant();
    });
  };
  save("SaveRow", &frmAcReconciliation::SaveRow);
  save("SaveStatementRow", &frmAcReconciliation::SaveStatementRow);
  routine("RunInterest", &frmAcReconciliation::RunInterest);
  Method("MassMarking", [this](const Array& arguments) {
    MassMarking(arguments.at(0).ToFlag());
    return Variant();
  });
  Method("CalcInterest", [this](const Array& arguments) { return CalcInterest(arguments.at(0).ToAmount()); });
}

void frmAcReconciliation::TakeCaller() {
  if (!CallingForm) return;
  AccountCode = CallingForm->Get("AccountCode").ToInteger();
  Date1 = CallingForm->Get("Date1").ToDate();
  Date2 = CallingForm->Get("Date2").ToDate();
  statement_ = &dynamic_cast<CGridPlus&>(CallingForm->ControlAt("Grid"));
  for (const int item : {1, 2}) {
    lblTitle1(item).Caption = dynamic_cast<Label&>(CallingForm->ControlAt("lblTitle1", item)).Caption();
  }
}

void frmAcReconciliation::LoadScreen() {
  DesignControls();
  showReference_ = true;
  cellEdited_ = false;
  lblTitle1(0).Caption = "   Reconciliation";
  TakeCaller();
  MStrip1.Code = AccountCode;
  if (!bCalcInt) {
    cmbFilter.Clear();
    for (const char* filter : {"All Entries", "Marked only", "Unmarked only"}) cmbFilter.AddItem(filter);
    cmbFilter.SetListIndex(0);
    UpdateGrid();
  } else {
    Grid.Rows = 1;
  }
  ReadInterestTerms();
  asOn_ = Date2;
  source_ = statement_;
}

void frmAcReconciliation::FirstShow() {
  if (bCalcInt) {
    GridIntt.Visible = false;
    source_ = statement_;
    RunInterest();
    if (IsLoaded() && !GridIntt.Visible) gRuntime->Unload(*this);
    return;
  }
  PutCursorOnLastRow();
}

void frmAcReconciliation::ButtonPressed(int index) {
  const std::string key = BtnBar1.Buttons(index).Key();
  CGridPlus* const grid = VisibleGrid();
  // A date that is being typed is stored first, so that the view that is asked for has it.
  if (key != "Exit" && grid != nullptr && !grid->EndEdit()) return;
  if (key == "MassMarking") {
    PopupMarking();
  } else if (key == "ShowRef") {
    showReference_ = !showReference_;
    if (GridStatement.Visible) UpdateGridStatement();
    if (GridPBook.Visible) UpdateGridPassBook();
  } else if (key == "Interest") {
    PressInterest();
  } else if (key == "Statement") {
    AskStatement();
  } else if (key == "PassBook") {
    ShowPassBook();
  } else if (key == "Preview" || key == "Print") {
    Print(key == "Print");
  } else if (key == "Exit") {
    PressExit();
  }
}

void frmAcReconciliation::HideGrids() {
  Grid.Visible = false;
  cmbFilter.Visible = false;
  GridIntt.Visible = false;
  GridPBook.Visible = false;
  GridStatement.Visible = false;
  BtnBar1.EnableButtons({0, 1, 2, 3});
}

void frmAcReconciliation::UpdateRefButton() {
  const bool references = GridPBook.Visible || GridStatement.Visible;
  CButtonBar::Button& button = BtnBar1.Buttons(kShowRef);
  button.SetPicture(references ? gApp->GetPicture("Customers") : "");
  button.SetCaption(!references ? "" : showReference_ ? "F4: Hide Ref." : "F4: Show Ref.");
  button.SetKey(references ? "ShowRef" : "");
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

void frmAcReconciliation::ShowEntries() {
  HideGrids();
  Grid.Visible = true;
  cmbFilter.Visible = true;
  source_ = statement_;
  Grid.SetFocus();
  BtnBar1.EnableButtons({0, 1, 2, 3, 4, 5});
  UpdateRefButton();
}

CGridPlus* frmAcReconciliation::VisibleGrid() {
  for (CGridPlus* grid : {&Grid, &GridStatement, &GridPBook, &GridIntt}) {
    if (grid->Visible) return grid;
  }
  return nullptr;
}

void frmAcReconciliation::OpenVoucherOf(const CGridPlus& grid, int voucherColumn) {
  if (grid.Row < 1) return;
  const long long id = ValInteger(grid.Cell(grid.Row, voucherColumn));
  gApp->OpenVoucher(*this, id, gSession->Year().StartYear(), AccountCode);
}

void frmAcReconciliation::ZoomRow() {
  if (Grid.Visible) {
    OpenVoucherOf(Grid, statement_col::kVoucherId);
  } else if (GridPBook.Visible) {
    OpenVoucherOf(GridPBook, statement_col::kVoucherId);
  } else if (GridStatement.Visible) {
    EditStatementRow();
  }
}

long frmAcReconciliation::CounterAccount(std::int64_t voucherId, Amount amount) {
  std::int64_t code = 0;
  std::string text;
  gApp->VoucherCrossRef(gSession->Year().Db(), voucherId, amount, code, text);
  return code;
}

void frmAcReconciliation::Print(bool print) {
  bool denied = false;
  CGridPlus* const grid = VisibleGrid();
  if (grid == nullptr || gApp->CheckRight("acst.reconciliation", "P", denied)) return;
  CReportOptions options;
  options.DataRS.Open("select * from famaster where mcd=" + books::SqlNumber(AccountCode),
                      gSession->MainDb());
  options.SetOption("MainHeadForm1", "AcMain1");
  options.SetOption("MainHeadForm2", "AcMain2");
  options.SetOption("SubHeadForm1", "AcSubHead1");
  options.SetOption("SubHeadForm2", "AcSubHead2");
  std::optional<FooterAsLastRow> closing;
  if (grid == &GridStatement) closing.emplace(GridStatement);
  if (grid == &GridStatement || grid == &GridPBook) options.SetOption("BalColID", "6");
  gReports->ShowGrid(*grid, &options, grid->Title, lblTitle1(2).Caption, 3, print);
}

void frmAcReconciliation::UnloadScreen() {
  if (mErrLog) gRuntime->Unload(*mErrLog->Form());
  statement_ = source_ = nullptr;
  gridRows_.clear();
}

// --- What both editable views do alike
// --------------------------------------------------------------------------

bool frmAcReconciliation::InvalidDate(bool& cancel) {
  gStd->MsgBox("Invalid Date", "", "E");
  cancel = true;
  return false;
}

bool frmAcReconciliation::CopyDateAbove(CGridPlus& grid, int row, int col, std::string& text, bool& cancel) {
  if (row <= 1) return InvalidDate(cancel);
  text = grid.TextMatrix(row - 1, col);
  return true;
}

void frmAcReconciliation::FillDown(CGridPlus& grid, int row, int col, std::string& text, Save save) {
  const BusyPointer pointer;
  int from = row - 1;
  while (from > 0 && (!grid.IsRowVisible(from) || grid.Cell(from, col).empty())) --from;
  if (from == 0) {
    text = grid.TextMatrix(row, col);
    return;
  }
  grid.EndEdit();
  const BusyJob job;
  const std::string date = grid.TextMatrix(from, col);
  Progress progress("Filling dates", row - from);
  for (int next = from + 1; next <= row; ++next, progress.Step()) {
    if (grid.IsRowVisible(next)) (this->*save)(next, date);
  }
}

}  // namespace quillon
