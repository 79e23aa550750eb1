#include "desk/screens/frmVoucherEntry.h"

#include <algorithm>

#include "desk/screens/VoucherColumns.h"
#include "host/forms/GridRows.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace col = voucher_col;

namespace {

/// A row for what balances the lines, and the totals.
constexpr int kMainRow = 0;
constexpr int kTotalsRow = 1;

}  // namespace

void frmVoucherEntry::ConnectGrid() {
  Grid.BeforeEdit = [this](int row, int column, bool& cancel, std::string& action) {
    BeforeEdit(row, column, cancel, action);
  };
  Grid.CellGotFocus = [this](int row, int column) { CellOpened(row, column); };
  Grid.EditKeyDown = [this](int row, int column, KeyEvent& key) {
    if (key.KeyCode == keys::kEnter && key.Shift == 0) EnterInCell(row, column, key);
  };
  Grid.ValidateCell = [this](int row, int column, std::string& text, bool& cancel) {
    CheckCell(row, column, text, cancel);
  };
  Grid.CellLostFocus = [this](int, int) {
    SelGrid1.Close();
    ShowSums();
  };
  Grid.GotFocus = [this] {
    if (!Grid.EditMode()) OpenCell(FreeRow(), col::kHead);
  };
  Grid.RowChange = [this](int row) {
    if (row >= 1 && row < Grid.Rows && HasCode(row)) MStrip1.Code = ValInteger(Grid.Cell(row, col::kCode));
  };
  SelGrid1.Selected = [this] { TakeAccount(); };
  SelGrid1.NotFound = [](const std::string& typed) {
    gStd->MsgBox("No account is found by \"" + typed + "\".", "", "W");
  };
}

void frmVoucherEntry::SetColumns() {
  gStd->SetupGrid(Grid);
  Grid.Cols = col::kCount;
  SetColumnsInTwips(Grid, {
                              {col::kCode, "", 0, kAlignLeft},
                              {col::kHead, "A/c Head", 0.44, kAlignLeft},
                              {col::kStation, "Station", 0.18, kAlignLeft},
                              {col::kDebit, "Debit", 0.18, kAlignRight},
                              {col::kCredit, "Credit", 0.18, kAlignRight},
                          });
  for (const int column : {col::kHead, col::kDebit, col::kCredit}) Grid.SetColEditable(column, true);
}

// --- The lines as values

bool frmVoucherEntry::HasCode(int row) const {
  return row < Grid.Rows && ValInteger(Grid.Cell(row, col::kCode)) != 0;
}

int frmVoucherEntry::FreeRow() const {
  int row = 1;
  while (HasCode(row)) ++row;
  return row;
}

void frmVoucherEntry::ShowLines(const std::vector<VoucherLine>& lines) {
  Grid.CancelEdit();
  Grid.Rows = 1;
  Grid.Rows = static_cast<int>(lines.size()) + 2;
  int row = 0;
  for (const VoucherLine& line : lines) {
    ++row;
    CDataSet account;
    account.Open("Select mhd,mst from FAMaster where mcd=" + std::to_string(line.Account),
                 gSession->MainDb());
    Grid.SetTextMatrix(row, col::kCode, std::to_string(line.Account));
    if (!account.Eof()) {
      Grid.SetTextMatrix(row, col::kHead, account.Field("mhd").ToText());
      Grid.SetTextMatrix(row, col::kStation, account.Field("mst").ToText());
    }
    Grid.SetTextMatrix(row, line.Value < Amount() ? col::kCredit : col::kDebit,
                       gStd->FormatAmount(line.Value.Abs(), "c2"));
  }
  Grid.Row = 1;
  Grid.Col = col::kHead;
}

std::vector<VoucherLine> frmVoucherEntry::ReadLines() const {
  std::vector<VoucherLine> lines;
  for (int row = 1; row < Grid.Rows; ++row) {
    if (!HasCode(row)) continue;
    lines.push_back(
        {ValInteger(Grid.Cell(row, col::kCode)), gStd->ParseAmount(Grid.TextMatrix(row, col::kDebit)) -
                                                     gStd->ParseAmount(Grid.TextMatrix(row, col::kCredit))});
  }
  return lines;
}

void frmVoucherEntry::ShowSums() {
  const VoucherDraft draft = ReadDraft();
  const Amount balance = draft.HasMain() ? draft.MainValue() : -draft.Difference();
  Amount debits;
  Amount credits;
  for (const VoucherLine& line : draft.Lines) (line.Value < Amount() ? credits : debits) += line.Value.Abs();
  if (draft.HasMain()) (balance < Amount() ? credits : debits) += balance.Abs();
  Grid.Footer.SetRows(kTotalsRow + 1);
  for (const int column : {col::kDebit, col::kCredit}) Grid.Footer.SetTextMatrix(kMainRow, column, "");
  Grid.Footer.SetTextMatrix(
      kMainRow, col::kHead,
      draft.HasMain() ? txpMain.Text() : std::string(balance.IsZero() ? "" : "Still missing"));
  Grid.Footer.SetTextMatrix(kMainRow, balance < Amount() ? col::kCredit : col::kDebit,
                            gStd->FormatAmount(balance.Abs(), "c2"));
  ShowTotals(Grid, kTotalsRow, col::kHead, "Totals", {{col::kDebit, debits}, {col::kCredit, credits}});
  lblMissing.Caption = "   " + StillMissing(draft);
}

// --- The cell under edit

/// The column where a line's amount stands; of a new line the side that is still missing.
int frmVoucherEntry::AmountColumn(int row) const {
  if (row < Grid.Rows && !Grid.Cell(row, col::kDebit).empty()) return col::kDebit;
  if (row < Grid.Rows && !Grid.Cell(row, col::kCredit).empty()) return col::kCredit;
  const VoucherDraft draft = ReadDraft();
  const bool isCredit = draft.HasMain() ? SpecOf(kind_).MainSide > 0 : draft.Difference() > Amount();
  return isCredit ? col::kCredit : col::kDebit;
}

/// Lines are filled one after the other, the account before its amount.
void frmVoucherEntry::BeforeEdit(int row, int column, bool& cancel, std::string& action) {
  if (row > FreeRow()) {
    cancel = true;
    action = "Stop";
  } else if (column == col::kHead) {
    cancel = false;
  } else {
    const int other = column == col::kDebit ? col::kCredit : col::kDebit;
    cancel = (column != col::kDebit && column != col::kCredit) || !HasCode(row) ||
             (Grid.Cell(row, column).empty() && !Grid.Cell(row, other).empty());
  }
}

/// In a journal the amount that makes the voucher even is offered.
void frmVoucherEntry::CellOpened(int row, int column) {
  Grid.EditBox.NumericOnly = column != col::kHead;
  Grid.EditBox.AllowDecimalPoints = column != col::kHead;
  if (column == col::kHead) {
    SelGrid1.OpenUnder(Grid);
    return;
  }
  const Amount difference = ReadDraft().Difference();
  const bool closes = column == (difference > Amount() ? col::kCredit : col::kDebit);
  const bool isNew = Grid.Cell(row, col::kDebit).empty() && Grid.Cell(row, col::kCredit).empty();
  if (!isNew || difference.IsZero() || !closes) return;
  Grid.EditBox.Text = gStd->FormatAmount(difference.Abs(), "c2");
  Grid.EditBox.SelectAll();
}

void frmVoucherEntry::OpenCell(int row, int column) {
  if (row >= Grid.Rows) Grid.Rows = row + 1;
  Grid.SetCell(row, column);
}

void frmVoucherEntry::EnterInCell(int row, int column, KeyEvent& key) {
  const std::string typed = text::Trim(Grid.EditBox.Text());
  if (column == col::kHead) {
    if (!typed.empty() && typed != Grid.TextMatrix(row, col::kHead)) return;  // the list takes it
    key.KeyCode = 0;
    EnterOnHead(row);
    return;
  }
  const int other = column == col::kDebit ? col::kCredit : col::kDebit;
  if (!typed.empty() || !Grid.Cell(row, other).empty() || column != AmountColumn(row)) return;
  key.KeyCode = 0;
  OpenCell(row, other);
}

/// On an account that stays Enter goes on to its amount; on none it ends the lines, and takes the line away
/// whose account was deleted.
void frmVoucherEntry::EnterOnHead(int row) {
  if (!Grid.EditBox.Text->empty()) {
    OpenCell(row, AmountColumn(row));
    return;
  }
  Grid.CancelEdit();
  if (HasCode(row)) {
    Grid.RemoveItem(row);
    ShowSums();
    OpenCell(std::min(row, FreeRow()), col::kHead);
  } else {
    LeaveLines();
  }
}

void frmVoucherEntry::LeaveLines() { txpNarration.SetFocus(); }

void frmVoucherEntry::CheckCell(int row, int column, std::string& text, bool& cancel) {
  if (column == col::kHead) {
    CheckHead(row, text, cancel);
  } else {
    CheckAmount(row, column, text, cancel);
  }
}

/// A line without an account is none; that of a line that stays is not taken away by leaving it empty.
void frmVoucherEntry::CheckHead(int row, std::string& text, bool& cancel) {
  const std::string known = Grid.TextMatrix(row, col::kHead);
  if (text == known) return;
  if (text::Trim(text).empty()) {
    text = known;
  } else if (SelGrid1.HasChoice()) {
    PutAccount(row, SelGrid1.Grid.Row);
    text = Grid.TextMatrix(row, col::kHead);
  } else {
    cancel = true;
    gStd->MsgBox("No account is found by \"" + text + "\".", "", "W");
  }
}

void frmVoucherEntry::CheckAmount(int row, int column, std::string& text, bool& cancel) {
  Amount amount;
  bool isInRange = true;
  try {
    amount = gStd->RoundAmount(gStd->ParseAmount(text), "2");
    isInRange = amount.Abs() < kAmountLimit;
  } catch (const OverflowError&) {
    isInRange = false;
  }
  if (!isInRange) {
    cancel = true;
    gStd->MsgBox("An amount stays below Rs. " + gStd->FormatAmount(kAmountLimit, "C2") + ".", "", "W");
    return;
  }
  text = gStd->FormatAmount(amount.Abs(), "c2");
  if (!text.empty()) Grid.SetTextMatrix(row, column == col::kDebit ? col::kCredit : col::kDebit, "");
}

// --- The account of a line

void frmVoucherEntry::PutAccount(int row, int line) {
  Grid.SetTextMatrix(row, col::kCode, std::to_string(ValInteger(SelGrid1.Cell(line, 1))));
  Grid.SetTextMatrix(row, col::kHead, SelGrid1.Cell(line, 0));
  Grid.SetTextMatrix(row, col::kStation, SelGrid1.Cell(line, 2));
}

/// A pick goes on to the amount.
void frmVoucherEntry::TakeAccount() {
  const int row = Grid.EditRow();
  PutAccount(row, SelGrid1.Grid.Row);
  MStrip1.Code = ValInteger(Grid.Cell(row, col::kCode));
  OpenCell(row, AmountColumn(row));
}

}  // namespace quillon
