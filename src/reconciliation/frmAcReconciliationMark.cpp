#include "reconciliation/frmAcReconciliationMark.h"

#include <algorithm>

#include "books/SqlText.h"
#include "books/StoreEntry.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"
#include "reconciliation/ChequeSearch.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmAcReconciliationMark",
    .caption = "   Reconciliation Markings",
    .titleSuffix = " -> Reconciliation Markings",
    .rightKey = "acst.reconciliation",
    .registerTitle = "Reconciliation",
    .iconKey = "Modify",
    .firstKey = keys::kF3,
    .lastKey = keys::kF9,
    .helpContext = 3,
};

namespace col {

constexpr int kVoucherId = 0;  // 0 or empty until the row is matched
constexpr int kParty = 1;
constexpr int kClearDate = 2;
constexpr int kChequeNo = 3;
constexpr int kVoucherDate = 4;
constexpr int kNarration = 5;
constexpr int kDebit = 6;
constexpr int kCredit = 7;
constexpr int kPreMarked = 8;
constexpr int kCrossRef = 9;
constexpr int kCount = 10;

}  // namespace col

constexpr int kWholeDate = 99;  // a selection past the end of any date
constexpr std::int64_t kMostEntries = 10;
constexpr std::size_t kListNarration = 30;

/// The dates that the voucher's lines lose when its mark is removed.
std::vector<ClearedDates::Change> MarksOf(CDbLink& db, std::int64_t voucher) {
  std::vector<ClearedDates::Change> marks;
  CDataSet lines;
  for (lines.Open("SELECT DVCHSUBNO,DBANKDATE FROM FADATA WHERE DBANKDATE IS NOT NULL AND VOUCHERID=" +
                      books::SqlNumber(voucher),
                  db);
       !lines.Eof(); lines.MoveNext()) {
    marks.push_back({{voucher, lines.Field("DVCHSUBNO").ToInteger()}, lines.Field("DBANKDATE").ToDate(), {}});
  }
  return marks;
}

}  // namespace

frmAcReconciliationMark::frmAcReconciliationMark()
    : ScreenForm(kScreen, Origin::Module),
      picInputs(*this, "picInputs"),
      txpDays(picInputs, "txpDays"),
      Grid(*this, "Grid"),
      MStrip2(*this, "MStrip2") {
  Caption = "Reconciliation Markings";
  Member("FYear", FYear);
  MemberPeriod(*this);
  Method("FindChequeNo", [this](const Array& arguments) {
    if (arguments.size() < 2) throw HostError("FindChequeNo needs a cheque number and a row");
    const auto row = static_cast<int>(arguments[1].ToInteger());
    if (row < 1 || row >= Grid.Rows) throw SubscriptError("row " + std::to_string(row));
    bool ok = false;
    FindChequeNo(arguments[0].ToText(), row, ok);
    return ok;
  });
  ConnectGrid();
  txpDays.KeyDown = [this](KeyEvent& key) { txpDays_KeyDown(key); };
}

void frmAcReconciliationMark::ConnectGrid() {
  Grid.BeforeEdit = [this](int row, int column, bool& cancel, std::string& action) {
    Grid_BeforeEdit(row, column, cancel, action);
  };
  Grid.CellEnter = [this](int row, int column) { Grid_CellEnter(row, column); };
  Grid.ValidateCell = [this](int row, int column, std::string& text, bool& cancel) {
    Grid_ValidateCell(row, column, text, cancel);
  };
  Grid.RowChange = [this](int row) { ShowParty(row); };
  Grid.KeyDown = [this](KeyEvent& key) { Grid_KeyDown(key); };
  Grid.Undo = [this] { TakeBack(); };
  Grid.Redo = [this] { PutBack(); };
}

void frmAcReconciliationMark::LoadScreen() {
  if (!FYear) FYear = gSession->CurrentYear();
  DesignControls();
  ShowControls(false);
}

void frmAcReconciliationMark::FirstShow() {
  Grid.Title = PeriodText();
  SetColumns();
  ShowControls(true);
  MStrip2.Code = AccountCode;
  Grid.SetFocus();
  GoToStart();
}

void frmAcReconciliationMark::ShowControls(bool visible) {
  picInputs.Visible = visible;
  Grid.Visible = visible;
  BtnBar1.Visible = visible;
  MStrip2.Visible = visible;
}

void frmAcReconciliationMark::SetColumns() {
  Grid.Rows = 1;
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  SetColumnsInTwips(Grid, {
                              {col::kClearDate, "Clear Date", 1200, kAlignLeft},
                              {col::kChequeNo, "Chq. No.", 1000, kAlignLeft},
                              {col::kVoucherDate, "Vch.Date", 1200, kAlignLeft},
                              {col::kNarration, "Narration", 2000, kAlignLeft},
                              {col::kDebit, "Debit", 1200, kAlignRight},
                              {col::kCredit, "Credit", 1200, kAlignRight},
                              {col::kPreMarked, "Pre Marked", 1200, kAlignLeft},
                              {col::kCrossRef, "Cross Ref.", 2500, kAlignLeft},
                          });
  Grid.SetColEditable(col::kClearDate, true);
  Grid.SetColEditable(col::kChequeNo, true);
  Grid.Rows = 2;
}

void frmAcReconciliationMark::GoToStart() {
  Grid.Row = 1;
  Grid.Col = col::kClearDate;
  ShowParty(1);
}

void frmAcReconciliationMark::ShowParty(int row) {
  MStrip1.Code = row < 1 ? 0 : static_cast<long>(ValInteger(Grid.Cell(row, col::kParty)));
}

bool frmAcReconciliationMark::IsMatched(int row) const {
  return ValInteger(Grid.Cell(row, col::kVoucherId)) != 0;
}

// --- The cells

void frmAcReconciliationMark::Grid_BeforeEdit(int row, int column, bool& cancel, std::string& action) {
  cancel = true;
  if (row > 1 && !IsMatched(row - 1)) {
    action = "Stop";
    return;
  }
  if (column == col::kClearDate) cancel = false;
  if (column == col::kChequeNo && row < Grid.Rows) cancel = Grid.Cell(row, col::kClearDate).empty();
}

void frmAcReconciliationMark::Grid_CellEnter(int row, int column) {
  if (column != col::kClearDate || row < 2 || !Grid.EditBox.Text->empty()) return;
  Grid.EditBox.Text = Grid.TextMatrix(row - 1, col::kClearDate);
  Grid.EditBox.SelStart = 0;
  Grid.EditBox.SelLength = kWholeDate;
}

void frmAcReconciliationMark::Grid_ValidateCell(int row, int column, std::string& text, bool& cancel) {
  if (column == col::kClearDate) ValidateClearDate(row, text, cancel);
  if (column == col::kChequeNo) ValidateChequeNo(row, text, cancel);
}

void frmAcReconciliationMark::ValidateClearDate(int row, std::string& text, bool& cancel) {
  if (text.empty()) return;
  const std::string above = row > 1 ? Grid.TextMatrix(row - 1, col::kClearDate) : "";
  const Date date = Date::Parse(gStd->ParseDateText(text, above));
  if (date.IsEmpty()) {
    gStd->MsgBox("Invalid date", "", "W");
    cancel = true;
    return;
  }
  text = date.Text();
}

void frmAcReconciliationMark::ValidateChequeNo(int row, const std::string& text, bool& cancel) {
  if (IsMatched(row) || !IsSearched(Grid.TextMatrix(row, col::kClearDate), text)) return;
  bool ok = false;
  FindChequeNo(text, row, ok);
  cancel = !ok;
  if (!ok) return;
  gRuntime->DoEvents();
  gStd->SendKeys("{ENTER}");
}

/// On the number of a matched row Enter goes on to the next row: there is nothing left to key in here.
void frmAcReconciliationMark::Grid_KeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kEnter || key.Shift != 0) return;
  if (Grid.Row > 0 && Grid.Col == col::kChequeNo && IsMatched(Grid.Row)) Grid.Col = col::kVoucherDate;
}

void frmAcReconciliationMark::txpDays_KeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kEnter) return;
  key.KeyCode = 0;
  gStd->SendKeys("{TAB}");
}

// --- The search

void frmAcReconciliationMark::FindChequeNo(const std::string& chequeNo, int row, bool& ok) {
  ok = false;
  try {
    const Date clear = Date::Parse(Grid.TextMatrix(row, col::kClearDate));
    CDataSet entries;
    entries.Open(ChequeQuery(AccountCode, chequeNo, clear, ValInteger(txpDays.Text())), FYear->Db());
    if (entries.Eof()) {
      gStd->MsgBox("Cheque no. not found: " + chequeNo, "", "W");
      return;
    }
    if (!PickEntry(entries)) return;
    MarkEntry(entries, row);
    FillRow(entries, row);
    FindParty(row);
    ok = true;
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "FindChequeNo");
  }
}

bool frmAcReconciliationMark::PickEntry(CDataSet& entries) {
  const std::int64_t count = entries.RecordCount();
  if (count > kMostEntries) {
    gStd->MsgBox(std::to_string(count) + " records found, can't continue.", "", "W");
    return false;
  }
  return count == 1 || PickFromList(entries);
}

bool frmAcReconciliationMark::PickFromList(CDataSet& entries) {
  CPickList list;
  list.Modal(true);
  list.Title("Multiple matching records found ... Select one");
  list.Width = 9000;
  list.Height = 5000;
  list.AddColumn("Date", 800, kAlignLeft);
  list.AddColumn("Narration", 2000, kAlignLeft);
  list.AddColumn("Amount", 1000, kAlignRight);
  for (; !entries.Eof(); entries.MoveNext()) {
    list.AddItem(entries.Field("DVCHDATE").ToDate().Format("dd/MM/yyyy") + "\t" +
                     text::Left(entries.Field("NARRATION").ToText(), kListNarration) + "\t" +
                     gStd->FormatAmount(entries.Field("DAMT").ToAmount(), "c2"),
                 entries.Field("VOUCHERID").ToInteger());
  }
  if (!list.Show()) return false;
  entries.MoveFirst();
  entries.Find("VoucherID=" + books::SqlNumber(list.ItemData()));
  return !entries.Eof();
}

/// An entry that was marked earlier keeps its date.
void frmAcReconciliationMark::MarkEntry(const CDataSet& entry, int row) {
  const Date marked = entry.Field("DBANKDATE").ToDate();
  if (!marked.IsEmpty()) {
    Grid.SetTextMatrix(row, col::kPreMarked, marked.Text());
    gRuntime->Beep();
    return;
  }
  const books::EntryKey key{entry.Field("VOUCHERID").ToInteger(), entry.Field("DVCHSUBNO").ToInteger()};
  const Date date = Date::Parse(Grid.TextMatrix(row, col::kClearDate));
  books::StoreEntry(
      FYear->Db(), key.Voucher,
      "UPDATE FADATA SET DBANKDATE=" + gStd->SqlDate(date) + " WHERE DCD=" + books::SqlNumber(AccountCode) +
          " AND VOUCHERID=" + books::SqlNumber(key.Voucher) + " AND DVCHSUBNO=" + books::SqlNumber(key.Line));
  dates_.Note({key, {}, date});
}

void frmAcReconciliationMark::FillRow(const CDataSet& entry, int row) {
  const Amount amount = entry.Field("DAMT").ToAmount();
  Grid.SetTextMatrix(row, col::kVoucherId, entry.Field("VOUCHERID").ToText());
  Grid.SetTextMatrix(row, col::kVoucherDate, entry.Field("DVCHDATE").ToDate().Text());
  Grid.SetTextMatrix(row, col::kNarration, entry.Field("NARRATION").ToText());
  Grid.SetTextMatrix(row, amount < Amount() ? col::kCredit : col::kDebit,
                     gStd->FormatAmount(amount.Abs(), "n2"));
}

/// The largest other line of the voucher names the party.
void frmAcReconciliationMark::FindParty(int row) {
  const std::string account = books::SqlNumber(AccountCode);
  CDataSet party;
  party.Open(
      "SELECT FIRST 1 A.DCD,B.MHD FROM FADATA A INNER JOIN FAMASTER B ON A.DCD=B.MCD WHERE A.VOUCHERID=" +
          books::SqlNumber(Grid.Cell(row, col::kVoucherId)) + " AND A.DCD<>" + account +
          " ORDER BY ABS(DAMT) DESC",
      FYear->Db());
  if (party.Eof()) return;
  Grid.SetTextMatrix(row, col::kParty, party.Field("DCD").ToText());
  Grid.SetTextMatrix(row, col::kCrossRef, party.Field("MHD").ToText());
}

// --- The buttons

void frmAcReconciliationMark::Pressed(const std::string& key) {
  if (key == "RemoveMark") RemoveMark();
  if (key == "Clear") ClearPage();
}

/// The mark goes from every line of the voucher, on all its accounts.
void frmAcReconciliationMark::RemoveMark() {
  const int row = Grid.Row;
  if (row < 1 || !IsMatched(row)) return;
  if (!gStd->AskYesNo("Do you want to remove mark date of this entry?")) return;
  const std::int64_t voucher = ValInteger(Grid.Cell(row, col::kVoucherId));
  const std::vector<ClearedDates::Change> marks = MarksOf(FYear->Db(), voucher);
  books::StoreEntry(FYear->Db(), voucher,
                    "UPDATE FADATA SET DBANKDATE=NULL WHERE VOUCHERID=" + books::SqlNumber(voucher));
  const ClearedDates::Act act(dates_);
  for (const ClearedDates::Change& mark : marks) dates_.Note(mark);
  RemoveRow(row);
}

void frmAcReconciliationMark::RemoveRow(int row) {
  Grid.CancelEdit();
  Grid.RemoveItem(row);
  if (Grid.Rows < 2) Grid.Rows = 2;  // there is always a row to key in
  Grid.Row = std::max(Grid.Row(), 1);
  ShowParty(Grid.Row);
}

/// A match that was taken back leaves the page.
void frmAcReconciliationMark::TakeBack() {
  const auto outcome = dates_.TakeBack(FYear->Db());
  if (outcome) {
    for (const ClearedDates::Change& change : outcome->Done) {
      for (int row = Grid.Rows - 1; row >= 1 && change.After.IsEmpty(); --row) {
        if (ValInteger(Grid.Cell(row, col::kVoucherId)) == change.Entry.Voucher) RemoveRow(row);
      }
    }
  }
  gRuntime->Say(WordsOf(outcome, "taken back"));
}

void frmAcReconciliationMark::PutBack() { gRuntime->Say(WordsOf(dates_.PutBack(FYear->Db()), "put back")); }

/// A new page; what was marked stays marked.
void frmAcReconciliationMark::ClearPage() {
  if (!Grid.EndEdit()) Grid.CancelEdit();
  Grid.Rows = 1;
  Grid.Rows = 2;
  GoToStart();
}

void frmAcReconciliationMark::Print(bool print) {
  gReports->ShowGrid(Grid, nullptr, Grid.Title, lblTitle.Caption, IReports::kHostRuling, print);
}

}  // namespace quillon
