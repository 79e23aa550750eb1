#include "reconciliation/frmAcReconciliation.h"

#include <algorithm>

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "host/controls/RedrawHold.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

using namespace statement_col;

namespace {

constexpr long kRowHeight = 350;
constexpr long kReturnedColor = 0x5EAEFF;

constexpr int kMarkedOnly = 1;
constexpr int kUnmarkedOnly = 2;

}  // namespace

void frmAcReconciliation::ConnectGrid() {
  Grid.BeforeEdit = [this](int row, int col, bool& cancel, std::string& action) {
    Grid_BeforeEdit(row, col, cancel, action);
  };
  Grid.Changed = [this] { cellEdited_ = true; };
  Grid.ValidateCell = [this](int row, int col, std::string& text, bool& cancel) {
    Grid_ValidateCell(row, col, text, cancel);
  };
  Grid.AfterEdit = [this](int row, int col) { Grid_AfterEdit(row, col); };
  Grid.RowChange = [this](int row) { Grid_RowChange(row); };
  Grid.KeyDown = [this](KeyEvent& key) { Grid_KeyDown(key); };
  Grid.EditKeyDown = [this](int, int, KeyEvent& key) { Grid_KeyDown(key); };
}

void frmAcReconciliation::UpdateGrid() {
  try {
    {
      const RedrawHold hold(Grid);
      SetGridColumns();
      CopyStatementRows();
      Grid.Footer.Clear();
      Grid.Footer.SetRows(2);
      Grid.Footer.SetTextMatrix(0, kNarration, "Totals");
      for (const int col : {kDebit, kCredit, kBalance}) {
        Grid.Footer.SetTextMatrix(0, col, statement_ != nullptr ? statement_->Footer.TextMatrix(0, col) : "");
      }
    }
    ShowFilterTitle();
    UpdateMarkedTotals();
    Grid.Visible = true;
    cmbFilter.Visible = true;
    if (CallingForm) lblTitle2.Caption = dynamic_cast<Label&>(CallingForm->ControlAt("lblTitle2")).Caption();
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "UpdateGrid");
  }
}

/// The layout of the statement and one column more, all of them hidden, in the grid's own font and without
/// rows.
void frmAcReconciliation::TakeStatementLayout(CGridPlus& grid) {
  grid.Rows = 1;
  if (statement_ != nullptr) {
    const quillon::Font font = grid.Font;
    grid.CopyLayout(*statement_);
    grid.Font = font;
  }
  grid.Cols = std::max(grid.Cols(), kReturned + 1) + (statement_ != nullptr ? 1 : 0);
  grid.HideAllColumns();
  for (int col = 0; col < grid.Cols; ++col) grid.SetTextMatrix(0, col, "");
}

void frmAcReconciliation::SetGridColumns() {
  TakeStatementLayout(Grid);
  if (gSession->Firm().Parameter(CFirm::kSerialColumn) == "Yes") {
    SetColumnsInChars(Grid, {{kSerial, "Sr. No.", 5, kAlignCentre}});
  }
  SetColumnsInChars(Grid, {
                              {kDate, "Date", 12, kAlignLeft},
                              {kBook, "Book", 4, kAlignCentre},
                              {kNarration, "Narration", 25, kAlignLeft},
                              {kDebit, "Debit", 11, kAlignRight},
                              {kCredit, "Credit", 11, kAlignRight},
                              {kBalance, "Balance", 14, kAlignRight},
                              {kClearedEdit, "Cleared On", 12, kAlignLeft},
                          });
  Grid.SetColEditable(kClearedEdit, true);
  Grid.Clear();
}

void frmAcReconciliation::CopyStatementRows() {
  marked_.Forget();
  gridRows_.clear();
  const int filter = cmbFilter.ListIndex();
  const int last = Grid.Cols - 1;
  const int sourceRows = statement_ != nullptr ? statement_->Rows() : 1;
  Grid.Rows = std::max(sourceRows, 2);
  int row = 0;
  for (int i = 1; i < sourceRows; ++i) {
    const bool cleared = !statement_->Cell(i, kClearedOn).empty();
    if ((filter == kMarkedOnly && !cleared) || (filter == kUnmarkedOnly && cleared)) continue;
    if (!statement_->IsRowVisible(i)) continue;
    ++row;
    Grid.CopyRow(row, *statement_, i);
    Grid.SetTextMatrix(row, kSerial, std::to_string(row));
    Grid.SetTextMatrix(row, kClearedEdit, statement_->Cell(i, kClearedOn));
    Grid.SetTextMatrix(row, last, std::to_string(i));
    Grid.SetRowHeight(row, kRowHeight);
    if (statement_->Cell(i, kReturned) == "Y") {
      gStd->SetRowColors(Grid, row, 0, last, kReturnedColor, Control::kDefaultColor);
    }
  }
  Grid.Rows = std::max(row + 1, 2);
  Grid.SetRowHeight(0, kRowHeight);
}

void frmAcReconciliation::ShowFilterTitle() {
  switch (cmbFilter.ListIndex()) {
    case kMarkedOnly:
      Grid.Title = "Reconciliation Workings ( Filter: Marked Entries )";
      break;
    case kUnmarkedOnly:
      Grid.Title = "Reconciliation Workings ( Filter: Unmarked Entries )";
      break;
    default:
      Grid.Title = "Reconciliation Workings";
  }
}

void frmAcReconciliation::UpdateMarkedTotals() {
  marked_.Update(Grid);
  const Amount debits = marked_.Debits();
  const Amount credits = marked_.Credits();
  const std::string difference = credits > debits ? gStd->FormatAmount(credits - debits, "C2") + " Cr."
                                                  : gStd->FormatAmount(debits - credits, "C2") + " Dr.";
  Grid.Footer.SetTextMatrix(1, kNarration, "Totals (O.Bal / Marked Entries)");
  Grid.Footer.SetTextMatrix(1, kDebit, gStd->FormatAmount(debits, "C2"));
  Grid.Footer.SetTextMatrix(1, kCredit, gStd->FormatAmount(credits, "C2"));
  Grid.Footer.SetTextMatrix(1, kBalance, difference);
}

void frmAcReconciliation::cmbFilter_Click() {
  if (!cmbFilter.Visible || !Grid.EndEdit()) return;
  UpdateGrid();
  // The rows are others now, so the strip and the returned mark must follow the cursor.
  Grid.Row = 1;
  Grid.Col = kClearedEdit;
}

void frmAcReconciliation::PutCursorOnLastRow() {
  if (!Grid.Visible) return;
  const bool openingOnly = Grid.Cell(1, kBookCode) == books::kOpeningBook && Grid.Rows < 3;
  if (openingOnly) return;
  Grid.Row = Grid.Rows - 1;
  Grid.Col = kClearedEdit;
}

void frmAcReconciliation::Grid_BeforeEdit(int row, int col, bool& cancel, std::string& action) {
  cancel = true;
  if (row < Grid.Rows) {
    if (col != kClearedEdit) return;
    cancel = Val(Grid.Cell(row, kVoucherId)) == 0 || Grid.Cell(row, kBook) == books::kOpeningBook;
  }
  if (cancel) action = "Stop";
}

void frmAcReconciliation::Grid_ValidateCell(int row, int col, std::string& text, bool& cancel) {
  if (col != kClearedEdit || !cellEdited_) return;
  if (text == "00" && row > 1) {
    FillDown(Grid, row, col, text, &frmAcReconciliation::SaveRowAndCell);
    return;
  }
  if (text == "=") {
    if (!CopyDateAbove(Grid, row, col, text, cancel)) return;
  } else if (!text.empty()) {
    const Date date = Date::Parse(gStd->ParseDateText(text, Grid.TextMatrix(row, kDate)));
    if (date.IsEmpty() || date < gSession->Year().StartDate().AddYears(-1)) {
      InvalidDate(cancel);
      return;
    }
    text = date.Text();
  }
  SaveRow(row, text);
}

void frmAcReconciliation::SaveRow(int row, const std::string& dateText) {
  const Date date = Date::Parse(dateText);
  StoreClearedDate(row, date);
  if (const int source = SourceRow(row); source > 0) {
    statement_->SetTextMatrix(source, kClearedOn, date.IsEmpty() ? dateText : date.Text());
  }
}

void frmAcReconciliation::StoreClearedDate(int row, Date date) {
  gSession->Year().Db().Execute("Update FAData set dBankDate=" + books::SqlDateOrNull(date) +
                                " where VoucherID=" + books::SqlNumber(Grid.Cell(row, kVoucherId)) +
                                " and dVchSubNo=" + books::SqlNumber(Grid.Cell(row, kVchSubNo)));
}

/// The row of the calling statement that a row of Grid was copied from; 0 when that statement has turned to
/// other rows meanwhile.
int frmAcReconciliation::SourceRow(int row) const {
  const auto source = static_cast<int>(ValInteger(Grid.Cell(row, Grid.Cols - 1)));
  if (statement_ == nullptr || source < 1 || source >= statement_->Rows) return 0;
  const bool same = statement_->Cell(source, kVoucherId) == Grid.Cell(row, kVoucherId) &&
                    statement_->Cell(source, kVchSubNo) == Grid.Cell(row, kVchSubNo);
  return same ? source : 0;
}

void frmAcReconciliation::SaveRowAndCell(int row, const std::string& dateText) {
  SaveRow(row, dateText);
  Grid.SetTextMatrix(row, kClearedEdit, dateText);
  marked_.Recount(Grid, row);
}

void frmAcReconciliation::Grid_AfterEdit(int row, int /*col*/) {
  if (cellEdited_) {
    cellEdited_ = false;
    marked_.Recount(Grid, row);
    WarnOutsideYear(Date::Parse(Grid.Cell(row, kClearedEdit)));
  }
  UpdateMarkedTotals();
}

void frmAcReconciliation::WarnOutsideYear(Date date) {
  const FinYear& year = gSession->Year();
  if (date.IsEmpty() || (date >= year.StartDate() && date <= year.EndDate())) return;
  gStd->MsgBox("Be careful, Date does not fall in current F.Year", "", "I");
}

void frmAcReconciliation::Grid_RowChange(int row) {
  cellEdited_ = false;
  if (row < 1) return;
  const long long voucher = ValInteger(Grid.Cell(row, kVoucherId));
  // Read as plain numbers, so up to the first comma.
  const Amount amount = Amount::OfText(Grid.Cell(row, kDebit)) - Amount::OfText(Grid.Cell(row, kCredit));
  MStrip2.Code = CounterAccount(voucher, amount);
  ShowReturned(row);
}

void frmAcReconciliation::ShowReturned(int row) {
  chkReturned.Visible = false;
  if (ValInteger(Grid.Cell(row, kVoucherId)) == 0) return;
  const bool returned = Grid.Cell(row, kReturned) == "Y";
  chkReturned.CheckValue = returned ? 1 : 0;
  chkReturned.BackColor = returned ? kReturnedColor : lblTitle2.BackColor();
  chkReturned.Visible = true;
}

void frmAcReconciliation::chkReturned_Click() {
  const std::string voucher = books::SqlNumber(Grid.Cell(Grid.Row, kVoucherId));
  if (!chkReturned.Visible || voucher == "0") return;
  const std::string mark = chkReturned.CheckValue != 0 ? "Y" : "N";
  gSession->Year().Db().Execute("UPDATE FADOCS SET CHQRETURN='" + mark + "' WHERE VOUCHERID=" + voucher);
  Grid.SetTextMatrix(Grid.Row, kReturned, mark);
  Grid.SetFocus();
}

void frmAcReconciliation::Grid_KeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kEnter || key.Shift != keys::kCtrl || Grid.Col != kClearedEdit) return;
  key.KeyCode = 0;
  ZoomRow();
}

}  // namespace quillon
