#include "reconciliation/StatementView.h"

#include "books/SqlText.h"
#include "host/controls/RedrawHold.h"
#include "host/forms/GridColumns.h"
#include "host/forms/GridFill.h"
#include "host/forms/Progress.h"
#include "host/services/BalanceText.h"
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

/// One of the four lists of entries on which books and bank disagree.
struct StatementView::Section {
  const char* heading;
  bool debits;       ///< takes the lines above zero, else those below
  const char* sign;  ///< of the hidden column
  const char* side;  ///< behind the section's total
  Amount sum;
};

StatementView::StatementView(WorkbenchAccount& account, CGridPlus& grid)
    : DatedView(account, grid, {col::kVoucherId, col::kVchSubNo, col::kDate, col::kClearedOn}) {
  grid_.BeforeEdit = [this](int row, int column, bool& cancel, std::string& action) {
    BeforeEdit(row, column, cancel, action);
  };
  grid_.AfterEdit = [this](int, int) { ForgetEdit(); };
  grid_.RowChange = [this](int row) { RowChange(row); };
  grid_.KeyDown = [this](KeyEvent& key) { KeyDown(key); };
  grid_.EditKeyDown = [this](int, int, KeyEvent& key) {
    if (key.KeyCode == keys::kEnter && key.Shift == keys::kCtrl) KeyDown(key);
  };
  grid_.DblClick = [this] { ZoomRow(); };
}

bool StatementView::AskDate() {
  CDateDialog dialog;
  dialog.Title("Reconciliation Statement as on");
  dialog.DateCaption("As on");
  dialog.SingleDate(true);
  dialog.SetDate1(asOn_);
  if (!dialog.Show()) return false;
  asOn_ = dialog.Date1();
  return true;
}

void StatementView::Update() {
  try {
    GridFill fill(grid_, "Reconciliation Statement as on " + asOn_.Format("dd/MM/yyyy"));
    Fill();
    fill.Done();
  } catch (const std::exception& error) {
    gApp->ReportError(error, &account_.Screen(), "UpdateGridStatement");
  }
}

void StatementView::SetColumns() {
  grid_.Rows = 1;
  grid_.Cols = col::kCount;
  grid_.HideAllColumns();
  SetColumnsInChars(grid_, {
                               {col::kDate, "Date", 12, kAlignLeft},
                               {col::kBook, "Book", 6, kAlignLeft},
                               {col::kParticulars, "Particulars", 40, kAlignLeft},
                               {col::kAmount, "", 14, kAlignRight},
                               {col::kTotal, "Amount", 18, kAlignRight},
                               {col::kClearedOn, "Cleared On", 12, kAlignRight},
                           });
  grid_.SetColEditable(col::kClearedOn, true);
  grid_.Clear();
  grid_.Rows = 2;
}

Amount StatementView::ShowBooksBalance() {
  const Amount balance =
      gSession->Year()
          .Db()
          .Lookup("FADATA", "Sum(dAmt)",
                  "dcd=" + books::SqlNumber(account_.Code()) + " and dvchdate<=" + gStd->SqlDate(asOn_) +
                      " and " + books::InBalances())
          .ToAmount();
  grid_.SetTextMatrix(1, col::kDate, asOn_.Text());
  grid_.SetTextMatrix(1, col::kParticulars, "Balance as per Our Books");
  grid_.SetTextMatrix(1, col::kTotal, balance.IsZero() ? "N I L  " : BalanceText(balance, "c2"));
  gStd->SetRowColors(grid_, 1, 0, col::kCount - 1, kBalanceColor, Control::kDefaultColor);
  return balance;
}

void StatementView::Fill() {
  SetColumns();
  LetRowsGo();
  const Amount balance = ShowBooksBalance();
  const std::string account = books::SqlNumber(account_.Code());
  const std::string date = gStd->SqlDate(asOn_);
  const std::string listed = "a.dcd=" + account + " and " + books::InLists("a.dBook") + " and ";
  Section debitedByUs{"Amounts Debited by us only:-", true, "1", " Cr.", {}};
  Section creditedByUs{"Amounts Credited by us only:-", false, "-1", " Dr.", {}};
  Section notDebited{"Amounts Not Debited by us:-", true, "", " Dr.", {}};
  Section notCredited{"Amounts Not Credited by us:-", false, "", " Cr.", {}};
  int row = 1;
  AddSections(listed + "a.dvchdate<=" + date + " and (a.dBankDate is null OR a.dBankDate>" + date + ")",
              debitedByUs, creditedByUs, row);
  AddSections(listed + "a.dvchdate>" + date + " and a.dBankDate<=" + date, notDebited, notCredited, row);
  AddAdjustedBalance(balance - debitedByUs.sum + creditedByUs.sum + notDebited.sum - notCredited.sum, row);
}

void StatementView::AddSections(const std::string& condition, Section& debits, Section& credits, int& row) {
  CDbLink& db = gSession->Year().Db();
  const std::shared_ptr<void> otherSides = account_.ExpectOtherSides(condition);
  CDataSet lines;
  lines.Reads = {"VoucherID", "dVchSubNo", "dVchDate", "dBook", "dAmt", "dBankDate"};
  lines.Open("Select a.*,n.Narration from FAData a,FANar n where a.NarrationID=n.NarrationID and " +
                 condition + " order by a.dvchdate,a.dbook",
             db);
  AddSection(lines, debits, row);
  AddSection(lines, credits, row);
}

void StatementView::AddSection(CDataSet& lines, Section& section, int& row) {
  Progress progress("Reading the entries", grid_);
  for (lines.MoveFirst(); !lines.Eof(); lines.MoveNext(), progress.Step()) {
    const Amount amount = lines.Field("dAmt").ToAmount();
    if (section.debits ? amount <= Amount() : amount >= Amount()) continue;
    if (section.sum.IsZero()) {
      grid_.SetTextMatrix(row, col::kCommand, "*hline1*");
      MakeRoom(grid_, ++row);
      grid_.SetTextMatrix(row, col::kParticulars, section.heading);
      gStd->SetRowColors(grid_, row, 0, col::kClearedOn, kHeadingColor, Control::kDefaultColor);
    }
    MakeRoom(grid_, ++row);
    AddLine(lines, section, row);
    section.sum += amount.Abs();
  }
  if (section.sum > Amount()) {
    grid_.SetTextMatrix(row, col::kTotal, gStd->FormatAmount(section.sum, "c2") + section.side);
  }
}

void StatementView::AddLine(CDataSet& line, const Section& section, int row) {
  const Variant cleared = line.Field("dBankDate");
  grid_.SetTextMatrix(row, col::kVoucherId, line.Field("VoucherID").ToText());
  grid_.SetTextMatrix(row, col::kVchSubNo, line.Field("dVchSubNo").ToText());
  grid_.SetTextMatrix(row, col::kDate, line.Field("dVchDate").ToDate().Text());
  grid_.SetTextMatrix(row, col::kBook, line.Field("dBook").ToText());
  grid_.SetTextMatrix(row, col::kParticulars, account_.NarrationWithReference(line));
  grid_.SetTextMatrix(row, col::kAmount, gStd->FormatAmount(line.Field("dAmt").ToAmount().Abs(), "c2"));
  grid_.SetTextMatrix(row, col::kClearedOn, cleared.ToDate().Text());
  grid_.SetTextMatrix(row, col::kSign, section.sign);
}

void StatementView::AddAdjustedBalance(Amount balance, int& row) {
  grid_.SetTextMatrix(row, col::kCommand, "*hline1*");
  MakeRoom(grid_, ++row);
  grid_.Rows = row + 1;
  grid_.SetTextMatrix(row, col::kParticulars, "Adjusted Balance");
  gStd->SetRowColors(grid_, row, 0, col::kCount - 1, kBalanceColor, Control::kDefaultColor);
  grid_.SetTextMatrix(row, col::kTotal, balance.IsZero() ? "  N I L  " : BalanceText(balance, "C2"));
  grid_.Row = 1;
  grid_.Footer.Clear();
  grid_.Footer.SetRows(1);
  const FormPtr caller = account_.Screen().CallingForm;
  const std::string head = caller ? caller->Get("FAMaster").ToObject()->Get("AcHead").ToText() : "";
  grid_.Footer.SetTextMatrix(0, col::kParticulars, "Bal. per " + head);
  grid_.Footer.SetTextMatrix(0, col::kTotal, gStd->FormatAmount(-balance, "c2"));
}

void StatementView::BeforeEdit(int row, int column, bool& cancel, std::string& action) const {
  if (row >= grid_.Rows) {
    cancel = true;
    action = "Stop";
    return;
  }
  const bool entry = !grid_.Cell(row, col::kDate).empty() && !grid_.Cell(row, col::kAmount).empty();
  cancel = column != col::kClearedOn || !entry;
}

void StatementView::Stored(const books::EntryKey& entry, int /*row*/, const std::string& dateText) {
  if (DateStored) DateStored({entry, {}, Date::Parse(dateText)});
}

void StatementView::RowChange(int row) {
  ForgetEdit();
  if (row >= 1) ShowOtherSide();
}

/// The sign column is empty in the third and fourth sections, which makes the amount 0 there.
WorkbenchView::Sided StatementView::SidedOf(int row) const {
  return {EntryOf(row).Voucher,
          Amount::OfText(grid_.Cell(row, col::kAmount)) * ValInteger(grid_.Cell(row, col::kSign))};
}

void StatementView::ZoomRow() {
  if (grid_.Row >= 1 && EntryOf(grid_.Row).Voucher > 0) grid_.SetCell(grid_.Row, col::kClearedOn);
}

void StatementView::Report(CReportOptions& options, const std::string& subtitle, bool print) {
  const FooterAsLastRow closing(grid_);
  WorkbenchView::Report(options, subtitle, print);
}

void StatementView::KeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kEnter || grid_.Row < 1) return;
  const bool entry = EntryOf(grid_.Row).Voucher > 0;
  if (key.Shift == keys::kCtrl) {
    key.KeyCode = 0;
    if (entry) OpenVoucherOf(col::kVoucherId);
  } else if (key.Shift == 0 && !grid_.EditMode()) {
    key.KeyCode = 0;
    ZoomRow();
  }
}

}  // namespace quillon
