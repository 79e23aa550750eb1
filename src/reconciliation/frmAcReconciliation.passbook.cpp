#include "reconciliation/frmAcReconciliation.h"

#include <algorithm>

#include "books/SqlText.h"
#include "host/controls/RedrawHold.h"
#include "host/data/CDataSet.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

using namespace statement_col;

namespace {

constexpr long kRowHeight = 350;
constexpr int kMoreRows = 100;

/// The bank's side of it: above zero the account is overdrawn.
std::string BalanceText(Amount balance) {
  if (balance.IsZero()) return "N I L  ";
  return gStd->FormatValue(balance.Abs(), "c2") + (balance > Amount() ? " Dr." : " Cr.");
}

/// What the books debit the bank has received, what they credit it has paid out.
void ShowAmount(CGridPlus& grid, int row, Amount inBooks) {
  grid.SetTextMatrix(row, inBooks < Amount() ? kDebit : kCredit, gStd->FormatValue(inBooks.Abs(), "c2"));
}

}  // namespace

void frmAcReconciliation::ConnectPassBook() {
  GridPBook.RowChange = [this](int row) { GridPBook_RowChange(row); };
  GridPBook.DblClick = [this] { ZoomRow(); };
  GridPBook.KeyDown = [this](KeyEvent& key) {
    if (key.KeyCode != keys::kEnter || key.Shift != 0) return;
    key.KeyCode = 0;
    ZoomRow();
  };
}

void frmAcReconciliation::ShowPassBook() {
  HideGrids();
  UpdateGridPassBook();
  if (!GridPBook.Visible) ShowEntries();  // it failed, and an empty screen would tell nobody anything
}

void frmAcReconciliation::UpdateGridPassBook() {
  try {
    {
      const RedrawHold hold(GridPBook);
      FillPassBook();
    }
    GridPBook.Visible = true;
    GridPBook.SetFocus();
    GridPBook.Title = "Pass Book";
    BtnBar1.Buttons("PassBook").SetEnabled(false);
    source_ = &GridPBook;
    UpdateRefButton();
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "UpdateGridPassBook");
  }
}

void frmAcReconciliation::SetPassBookColumns() {
  TakeStatementLayout(GridPBook);
  SetColumnsInChars(GridPBook, {
                                   {kDate, "Date", 12, kAlignLeft},
                                   {kBook, "Book", 4, kAlignCentre},
                                   {kNarration, "Narration", 25, kAlignLeft},
                                   {kDebit, "Dr.(Withdrawls)", 11, kAlignRight},
                                   {kCredit, "Cr.(Deposits)", 11, kAlignRight},
                                   {kBalance, "Balance", 14, kAlignRight},
                               });
  GridPBook.Clear();
  GridPBook.RowHeightMin = kRowHeight;
}

void frmAcReconciliation::FillPassBook() {
  CDbLink& db = gSession->Year().Db();
  const std::string account = books::SqlNumber(AccountCode);
  const Amount opening = db.Lookup("FADATA", "Sum(dAmt)",
                                   "dcd=" + account + " and (dBankDate<" + gStd->SqlDate(Date1) + " or " +
                                       books::IsOpening() + ") and " + books::InBalances())
                             .ToAmount();
  CDataSet entries;
  entries.Open(
      "Select a.*,n.Narration from FAData a Left Join FANar n on a.NarrationID=n.NarrationID where a.dcd=" +
          account + " and a.dBankDate between " + gStd->SqlDate(Date1, Date2) + " and " +
          books::InLists("a.dBook") + " order by a.dBankDate,a.dVchNo,a.dSrNo",
      db);
  SetPassBookColumns();
  int row = 0;
  if (!opening.IsZero()) {
    GridPBook.Rows = ++row + kMoreRows;
    GridPBook.SetTextMatrix(row, kDate, Date1.Text());
    GridPBook.SetTextMatrix(row, kNarration, "Opening Balance");
    ShowAmount(GridPBook, row, opening);
  }
  Progress progress("Reading the entries", 0);
  for (; !entries.Eof(); entries.MoveNext(), progress.Step()) {
    if (++row >= GridPBook.Rows) GridPBook.Rows = row + kMoreRows;
    AddPassBookEntry(entries, row);
  }
  GridPBook.Rows = std::max(row + 1, 2);
  GridPBook.Row = 1;
  AddPassBookBalances();
}

void frmAcReconciliation::AddPassBookEntry(CDataSet& entry, int row) {
  GridPBook.SetTextMatrix(row, kDate, entry.Field("dBankDate").ToDate().Text());
  GridPBook.SetTextMatrix(row, kNarration, NarrationWithReference(entry));
  GridPBook.SetTextMatrix(row, kBook, entry.Field("dBook").ToText());
  ShowAmount(GridPBook, row, entry.Field("dAmt").ToAmount());
  GridPBook.SetTextMatrix(row, kVoucherId, entry.Field("VOUCHERID").ToText());
}

void frmAcReconciliation::AddPassBookBalances() {
  Amount withdrawals;
  Amount deposits;
  for (int row = 1; row < GridPBook.Rows; ++row) {
    withdrawals += gStd->ParseAmount(GridPBook.Cell(row, kDebit));
    deposits += gStd->ParseAmount(GridPBook.Cell(row, kCredit));
    GridPBook.SetTextMatrix(row, kBalance, BalanceText(withdrawals - deposits));
  }
  GridPBook.Footer.Clear();
  GridPBook.Footer.SetRows(1);
  GridPBook.Footer.SetTextMatrix(0, kNarration, "Totals");
  GridPBook.Footer.SetTextMatrix(0, kDebit, gStd->FormatValue(withdrawals, "C2"));
  GridPBook.Footer.SetTextMatrix(0, kCredit, gStd->FormatValue(deposits, "C2"));
  GridPBook.Footer.SetTextMatrix(0, kBalance, gStd->FormatAmount(withdrawals - deposits, "c2"));
}

void frmAcReconciliation::GridPBook_RowChange(int row) {
  if (row < 1) return;
  // Read as plain numbers, so up to the first comma.
  const Amount amount =
      Amount::OfText(GridPBook.Cell(row, kCredit)) - Amount::OfText(GridPBook.Cell(row, kDebit));
  MStrip2.Code = CounterAccount(ValInteger(GridPBook.Cell(row, kVoucherId)), amount);
}

}  // namespace quillon
