#include "reconciliation/frmAcReconciliation.h"

#include "books/SqlText.h"
#include "host/controls/RedrawHold.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

namespace col {

constexpr int kDate = 0;
constexpr int kBook = 1;
constexpr int kParticulars = 3;
constexpr int kAmount = 4;
constexpr int kTotal = 5;
constexpr int kClearedOn = 6;
constexpr int kSign = 7;
constexpr int kVchSubNo = 9;
constexpr int kVoucherId = 10;
constexpr int kCommand = 11;
constexpr int kCount = 12;

}  // namespace col

constexpr long kBalanceColor = 0xFFFFFF;
constexpr long kHeadingColor = 0xC0FFFF;
constexpr int kMoreRows = 100;

/// Goes to row `row`, adding room when the grid is full.
void MakeRoom(CGridPlus& grid, int row) {
  if (row >= grid.Rows) grid.Rows = row + kMoreRows;
}

}  // namespace

/// One of the four lists of entries on which books and bank disagree.
struct frmAcReconciliation::Section {
  const char* heading;
  bool debits;       ///< takes the lines above zero, else those below
  const char* sign;  ///< of the hidden column
  const char* side;  ///< behind the section's total
  Amount sum;
};

void frmAcReconciliation::ConnectStatement() {
  GridStatement.BeforeEdit = [this](int row, int column, bool& cancel, std::string& action) {
    GridStatement_BeforeEdit(row, column, cancel, action);
  };
  GridStatement.Changed = [this] { cellEdited_ = true; };
  GridStatement.ValidateCell = [this](int row, int column, std::string& text, bool& cancel) {
    GridStatement_ValidateCell(row, column, text, cancel);
  };
  GridStatement.AfterEdit = [this](int, int) { cellEdited_ = false; };
  GridStatement.RowChange = [this](int row) { GridStatement_RowChange(row); };
  GridStatement.KeyDown = [this](KeyEvent& key) { GridStatement_KeyDown(key); };
  GridStatement.EditKeyDown = [this](int, int, KeyEvent& key) {
    if (key.KeyCode == keys::kEnter && key.Shift == keys::kCtrl) GridStatement_KeyDown(key);
  };
  GridStatement.DblClick = [this] { EditStatementRow(); };
}

std::string frmAcReconciliation::StatementTitle() const {
  return "Reconciliation Statement as on " + asOn_.Format("dd/MM/yyyy");
}

void frmAcReconciliation::AskStatement() {
  CDateDialog dialog;
  dialog.Title("Reconciliation Statement as on");
  dialog.DateCaption("As on");
  dialog.SingleDate(true);
  dialog.SetDate1(asOn_);
  if (!dialog.Show()) return;
  HideGrids();
  asOn_ = dialog.Date1();
  UpdateGridStatement();
  GridStatement.Title = StatementTitle();
  GridStatement.Visible = true;
  GridStatement.SetFocus();
  BtnBar1.Buttons("Statement").SetEnabled(false);
  UpdateRefButton();
}

void frmAcReconciliation::UpdateGridStatement() {
  try {
    {
      const RedrawHold hold(GridStatement);
      FillStatement();
    }
    GridStatement.Title = StatementTitle();
    GridStatement.Visible = true;
    GridStatement.SetFocus();
    BtnBar1.Buttons("Statement").SetEnabled(false);
    UpdateRefButton();
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "UpdateGridStatement");
  }
}

void frmAcReconciliation::SetStatementColumns() {
  GridStatement.Rows = 1;
  GridStatement.Cols = col::kCount;
  GridStatement.HideAllColumns();
  SetColumnsInChars(GridStatement, {
                                       {col::kDate, "Date", 12, kAlignLeft},
                                       {col::kBook, "Book", 6, kAlignLeft},
                                       {col::kParticulars, "Particulars", 40, kAlignLeft},
                                       {col::kAmount, "", 14, kAlignRight},
                                       {col::kTotal, "Amount", 18, kAlignRight},
                                       {col::kClearedOn, "Cleared On", 12, kAlignRight},
                                   });
  GridStatement.SetColEditable(col::kClearedOn, true);
  GridStatement.Clear();
  GridStatement.Rows = 2;
}

void frmAcReconciliation::FillStatement() {
  SetStatementColumns();
  CDbLink& db = gSession->Year().Db();
  const std::string account = books::SqlNumber(AccountCode);
  const std::string date = gStd->SqlDate(asOn_);
  const Amount balance =
      db.Lookup("FADATA", "Sum(dAmt)",
                "dcd=" + account + " and dvchdate<=" + date + " and " + books::InBalances())
          .ToAmount();
  GridStatement.SetTextMatrix(1, col::kDate, asOn_.Text());
  GridStatement.SetTextMatrix(1, col::kParticulars, "Balance as per Our Books");
  GridStatement.SetTextMatrix(
      1, col::kTotal,
      balance.IsZero() ? "N I L  "
                       : gStd->FormatAmount(balance.Abs(), "c2") + (balance < Amount() ? " Cr." : " Dr."));
  gStd->SetRowColors(GridStatement, 1, 0, col::kCount - 1, kBalanceColor, kDefaultColor);

  const std::string lines =
      "Select a.*,n.Narration from FAData a,FANar n where a.NarrationID=n.NarrationID and a.dcd=" + account +
      " and " + books::InLists("a.dBook") + " and ";
  const std::string order = " order by a.dvchdate,a.dbook";
  Section debitedByUs{"Amounts Debited by us only:-", true, "1", " Cr.", {}};
  Section creditedByUs{"Amounts Credited by us only:-", false, "-1", " Dr.", {}};
  Section notDebited{"Amounts Not Debited by us:-", true, "", " Dr.", {}};
  Section notCredited{"Amounts Not Credited by us:-", false, "", " Cr.", {}};
  int row = 1;
  CDataSet set;
  set.Open(lines + "a.dvchdate<=" + date + " and (a.dBankDate is null OR a.dBankDate>" + date + ")" + order,
           db);
  AddSection(set, debitedByUs, row);
  AddSection(set, creditedByUs, row);
  set.Open(lines + "a.dvchdate>" + date + " and a.dBankDate<=" + date + order, db);
  AddSection(set, notDebited, row);
  AddSection(set, notCredited, row);
  set.Close();
  AddAdjustedBalance(balance - debitedByUs.sum + creditedByUs.sum + notDebited.sum - notCredited.sum, row);
}

void frmAcReconciliation::AddSection(CDataSet& lines, Section& section, int& row) {
  Progress progress("Reading the entries", 0);
  for (lines.MoveFirst(); !lines.Eof(); lines.MoveNext(), progress.Step()) {
    const Amount amount = lines.Field("dAmt").ToAmount();
    if (section.debits ? amount <= Amount() : amount >= Amount()) continue;
    if (section.sum.IsZero()) {
      GridStatement.SetTextMatrix(row, col::kCommand, "*hline1*");
      MakeRoom(GridStatement, ++row);
      GridStatement.SetTextMatrix(row, col::kParticulars, section.heading);
      gStd->SetRowColors(GridStatement, row, 0, col::kClearedOn, kHeadingColor, kDefaultColor);
    }
    MakeRoom(GridStatement, ++row);
    AddStatementLine(lines, section, row);
    section.sum += amount.Abs();
  }
  if (section.sum > Amount()) {
    GridStatement.SetTextMatrix(row, col::kTotal, gStd->FormatAmount(section.sum, "c2") + section.side);
  }
}

void frmAcReconciliation::AddStatementLine(CDataSet& line, const Section& section, int row) {
  const Variant cleared = line.Field("dBankDate");
  GridStatement.SetTextMatrix(row, col::kVoucherId, line.Field("VoucherID").ToText());
  GridStatement.SetTextMatrix(row, col::kVchSubNo, line.Field("dVchSubNo").ToText());
  GridStatement.SetTextMatrix(row, col::kDate, line.Field("dVchDate").ToDate().Text());
  GridStatement.SetTextMatrix(row, col::kBook, line.Field("dBook").ToText());
  GridStatement.SetTextMatrix(row, col::kParticulars, NarrationWithReference(line));
  GridStatement.SetTextMatrix(row, col::kAmount,
                              gStd->FormatAmount(line.Field("dAmt").ToAmount().Abs(), "c2"));
  GridStatement.SetTextMatrix(row, col::kClearedOn, cleared.ToDate().Text());
  GridStatement.SetTextMatrix(row, col::kSign, section.sign);
}

std::string frmAcReconciliation::NarrationWithReference(CDataSet& line) {
  std::string narration = line.Field("Narration").ToText();
  if (!showReference_) return narration;
  std::int64_t code = 0;
  std::string text;
  gApp->VoucherCrossRef(gSession->Year().Db(), line.Field("VoucherID").ToInteger(),
                        line.Field("dAmt").ToAmount(), code, text);
  return text.empty() ? narration : narration + " : " + text;
}

void frmAcReconciliation::AddAdjustedBalance(Amount balance, int& row) {
  GridStatement.SetTextMatrix(row, col::kCommand, "*hline1*");
  MakeRoom(GridStatement, ++row);
  GridStatement.Rows = row + 1;
  GridStatement.SetTextMatrix(row, col::kParticulars, "Adjusted Balance");
  gStd->SetRowColors(GridStatement, row, 0, col::kCount - 1, kBalanceColor, kDefaultColor);
  GridStatement.SetTextMatrix(
      row, col::kTotal,
      balance.IsZero() ? "  N I L  "
                       : gStd->FormatAmount(balance.Abs(), "C2") + (balance < Amount() ? " Cr." : " Dr."));
  GridStatement.Row = 1;
  GridStatement.Footer.Clear();
  GridStatement.Footer.SetRows(1);
  const std::string head = CallingForm ? CallingForm->Get("FAMaster").ToObject()->Get("AcHead").ToText() : "";
  GridStatement.Footer.SetTextMatrix(0, col::kParticulars, "Bal. per " + head);
  GridStatement.Footer.SetTextMatrix(0, col::kTotal, gStd->FormatAmount(-balance, "c2"));
}

void frmAcReconciliation::GridStatement_BeforeEdit(int row, int column, bool& cancel, std::string& action) {
  if (row >= GridStatement.Rows) {
    cancel = true;
    action = "Stop";
    return;
  }
  const bool entry =
      !GridStatement.Cell(row, col::kDate).empty() && !GridStatement.Cell(row, col::kAmount).empty();
  cancel = column != col::kClearedOn || !entry;
}

void frmAcReconciliation::GridStatement_ValidateCell(int row, int column, std::string& text, bool& cancel) {
  if (column != col::kClearedOn || !cellEdited_) return;
  if (text == "00" && row > 1) {
    FillDown(GridStatement, row, column, text, &frmAcReconciliation::SaveStatementRow);
    return;
  }
  if (text == "=") {
    if (!CopyDateAbove(GridStatement, row, column, text, cancel)) return;
  } else if (!text.empty()) {
    const Date date = Date::Parse(gStd->ParseDateText(text, GridStatement.TextMatrix(row, col::kDate)));
    if (date.IsEmpty()) {
      InvalidDate(cancel);
      return;
    }
    text = date.Text();
  }
  SaveStatementRow(row, text);
}

void frmAcReconciliation::SaveStatementRow(int row, const std::string& dateText) {
  const long long voucher = ValInteger(GridStatement.Cell(row, col::kVoucherId));
  const long long subNo = ValInteger(GridStatement.Cell(row, col::kVchSubNo));
  gSession->Year().Db().Execute("Update FAData set dBankDate=" + books::SqlDateOrNull(Date::Parse(dateText)) +
                                " where VoucherID=" + std::to_string(voucher) +
                                " and dVchSubNo=" + std::to_string(subNo));
  GridStatement.SetTextMatrix(row, col::kClearedOn, dateText);
  EchoIntoEntries(voucher, subNo, dateText);
}

void frmAcReconciliation::EchoIntoEntries(long long voucher, long long subNo, const std::string& dateText) {
  using namespace statement_col;
  if (gridRows_.empty()) {
    for (int i = 1; i < Grid.Rows; ++i) {
      gridRows_.emplace(std::pair(ValInteger(Grid.Cell(i, kVoucherId)), ValInteger(Grid.Cell(i, kVchSubNo))),
                        i);
    }
  }
  const auto [first, last] = gridRows_.equal_range({voucher, subNo});
  for (auto entry = first; entry != last; ++entry) {
    Grid.SetTextMatrix(entry->second, kClearedEdit, dateText);
    marked_.Recount(Grid, entry->second);
    if (const int source = SourceRow(entry->second); source > 0) {
      statement_->SetTextMatrix(source, kClearedOn, dateText);
    }
  }
}

void frmAcReconciliation::GridStatement_RowChange(int row) {
  cellEdited_ = false;
  if (row < 1) return;
  // The sign column is empty in the third and fourth sections, which makes the amount 0 there.
  const Amount amount =
      Amount::OfText(GridStatement.Cell(row, col::kAmount)) * ValInteger(GridStatement.Cell(row, col::kSign));
  MStrip2.Code = CounterAccount(ValInteger(GridStatement.Cell(row, col::kVoucherId)), amount);
}

void frmAcReconciliation::EditStatementRow() {
  const int row = GridStatement.Row;
  if (row < 1 || ValInteger(GridStatement.Cell(row, col::kVoucherId)) <= 0) return;
  GridStatement.SetCell(row, col::kClearedOn);
}

void frmAcReconciliation::GridStatement_KeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kEnter || GridStatement.Row < 1) return;
  const bool entry = ValInteger(GridStatement.Cell(GridStatement.Row, col::kVoucherId)) > 0;
  if (key.Shift == keys::kCtrl) {
    key.KeyCode = 0;
    if (entry) OpenVoucherOf(GridStatement, col::kVoucherId);
  } else if (key.Shift == 0 && !GridStatement.EditMode()) {
    key.KeyCode = 0;
    EditStatementRow();
  }
}

}  // namespace quillon
