#include "reconciliation/PassBookView.h"

#include <algorithm>

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/forms/GridColumns.h"
#include "host/forms/GridFill.h"
#include "host/forms/Progress.h"
#include "host/services/AccountColumns.h"
#include "host/services/BalanceText.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

using namespace account_col;

namespace {

constexpr long kRowHeight = 350;
constexpr int kMoreRows = 100;

/// What the books debit the bank has received, what they credit it has paid out.
void ShowAmount(CGridPlus& grid, int row, Amount inBooks) {
  grid.SetTextMatrix(row, inBooks < Amount() ? kDebit : kCredit, gStd->FormatValue(inBooks.Abs(), "c2"));
}

}  // namespace

PassBookView::PassBookView(WorkbenchAccount& account, CGridPlus& grid) : WorkbenchView(account, grid) {
  grid_.RowChange = [this](int row) {
    if (row >= 1) ShowOtherSide();
  };
  grid_.DblClick = [this] { ZoomRow(); };
  grid_.KeyDown = [this](KeyEvent& key) {
    if (key.KeyCode != keys::kEnter || key.Shift != 0) return;
    key.KeyCode = 0;
    ZoomRow();
  };
}

void PassBookView::ZoomRow() { OpenVoucherOf(kVoucherId); }

void PassBookView::Update() {
  try {
    GridFill fill(grid_, "Pass Book");
    SetColumns();
    Fill();
    AddBalances();
    fill.Done();
  } catch (const std::exception& error) {
    gApp->ReportError(error, &account_.Screen(), "UpdateGridPassBook");
  }
}

void PassBookView::SetColumns() {
  TakeStatementLayout(grid_, account_.Statement());
  SetColumnsInChars(grid_, {
                               {kDate, "Date", 12, kAlignLeft},
                               {kBook, "Book", 4, kAlignCentre},
                               {kNarration, "Narration", 25, kAlignLeft},
                               {kDebit, "Dr.(Withdrawls)", 11, kAlignRight},
                               {kCredit, "Cr.(Deposits)", 11, kAlignRight},
                               {kBalance, "Balance", 14, kAlignRight},
                           });
  grid_.Clear();
  grid_.RowHeightMin = kRowHeight;
}

void PassBookView::Fill() {
  CDbLink& db = gSession->Year().Db();
  const std::string account = books::SqlNumber(account_.Code());
  const Amount opening = db.Lookup("FADATA", "Sum(dAmt)",
                                   "dcd=" + account + " and (dBankDate<" + gStd->SqlDate(account_.First()) +
                                       " or " + books::IsOpening() + ") and " + books::InBalances())
                             .ToAmount();
  const std::string cleared = "a.dcd=" + account + " and a.dBankDate between " +
                              gStd->SqlDate(account_.First(), account_.Last()) + " and " +
                              books::InLists("a.dBook");
  const std::shared_ptr<void> otherSides = account_.ExpectOtherSides(cleared);
  CDataSet entries;
  entries.Reads = {"VoucherID", "dBankDate", "dBook", "dAmt"};
  entries.Open(
      "Select a.*,n.Narration from FAData a Left Join FANar n on a.NarrationID=n.NarrationID where " +
          cleared + " order by a.dBankDate,a.dVchNo,a.dSrNo",
      db);
  int row = AddOpening(opening);
  Progress progress("Reading the entries", grid_);
  for (; !entries.Eof(); entries.MoveNext(), progress.Step()) {
    if (++row >= grid_.Rows) grid_.Rows = row + kMoreRows;
    AddEntry(entries, row);
  }
  grid_.Rows = std::max(row + 1, 2);
  grid_.Row = 1;
}

/// The last row that is taken: 1, or 0 where there is nothing to begin with.
int PassBookView::AddOpening(Amount opening) {
  if (opening.IsZero()) return 0;
  grid_.Rows = 1 + kMoreRows;
  grid_.SetTextMatrix(1, kDate, account_.First().Text());
  grid_.SetTextMatrix(1, kNarration, "Opening Balance");
  ShowAmount(grid_, 1, opening);
  return 1;
}

void PassBookView::AddEntry(CDataSet& entry, int row) {
  grid_.SetTextMatrix(row, kDate, entry.Field("dBankDate").ToDate().Text());
  grid_.SetTextMatrix(row, kNarration, account_.NarrationWithReference(entry));
  grid_.SetTextMatrix(row, kBook, entry.Field("dBook").ToText());
  ShowAmount(grid_, row, entry.Field("dAmt").ToAmount());
  grid_.SetTextMatrix(row, kVoucherId, entry.Field("VOUCHERID").ToText());
}

void PassBookView::AddBalances() {
  Amount withdrawals;
  Amount deposits;
  for (int row = 1; row < grid_.Rows; ++row) {
    withdrawals += gStd->ParseAmount(grid_.Cell(row, kDebit));
    deposits += gStd->ParseAmount(grid_.Cell(row, kCredit));
    // The bank's side of it: above zero the account is overdrawn.
    const Amount balance = withdrawals - deposits;
    grid_.SetTextMatrix(row, kBalance, balance.IsZero() ? "N I L  " : BalanceText(balance, "c2"));
  }
  grid_.Footer.Clear();
  grid_.Footer.SetRows(1);
  grid_.Footer.SetTextMatrix(0, kNarration, "Totals");
  grid_.Footer.SetTextMatrix(0, kDebit, gStd->FormatValue(withdrawals, "C2"));
  grid_.Footer.SetTextMatrix(0, kCredit, gStd->FormatValue(deposits, "C2"));
  grid_.Footer.SetTextMatrix(0, kBalance, gStd->FormatAmount(withdrawals - deposits, "c2"));
}

/// Read as plain numbers, so up to the first comma.
WorkbenchView::Sided PassBookView::SidedOf(int row) const {
  return {ValInteger(grid_.Cell(row, kVoucherId)),
          Amount::OfText(grid_.Cell(row, kCredit)) - Amount::OfText(grid_.Cell(row, kDebit))};
}

}  // namespace quillon
