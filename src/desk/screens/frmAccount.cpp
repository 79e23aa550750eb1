#include "desk/screens/frmAccount.h"

#include <algorithm>
#include <optional>
#include <tuple>

#include "books/BooksNames.h"
#include "books/EntryRows.h"
#include "books/SqlText.h"
#include "desk/screens/ModuleScreen.h"
#include "desk/services/NarrationTexts.h"
#include "host/forms/AccountPicker.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/GridFill.h"
#include "host/forms/GridRows.h"
#include "host/forms/Progress.h"
#include "host/services/AccountColumns.h"
#include "host/services/BalanceText.h"
#include "host/services/host_services.h"
#include "host/values/FlagHold.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmAccount",
    .caption = "   Statement of Account",
    .titleSuffix = " -> Statement of Account",
    .rightKey = "",
    .registerTitle = "A/c Statement",
    .iconKey = "AcStatement",
    .firstKey = keys::kF2,
    .lastKey = keys::kF9,
    .initForm = true,
    .helpContext = 1,
};

namespace col = account_col;

/// What is kept out must not be overlooked.
constexpr long kFilterColor = 0x80E0FF;

/// The books of a year know nothing of the days before and after it, its opening balances included.
bool IsInYear(const CDateDialog& period) {
  const FinYear& year = gSession->Year();
  if (period.Date1() >= year.StartDate() && period.Date2() <= year.EndDate()) return true;
  gStd->MsgBox("The year runs from " + year.StartDate().Text() + " to " + year.EndDate().Text() + ".", "",
               "W");
  return false;
}

}  // namespace

struct frmAccount::Sums {
  Amount debits;
  Amount credits;
  Amount balance;

  void Add(Amount amount) {
    (amount < Amount() ? credits : debits) += amount.Abs();
    balance += amount;
  }
};

/// A line of FAData, as the statement shows it.
struct frmAccount::Entry {
  std::int64_t Voucher;
  std::int64_t Line;
  std::optional<std::int64_t> Serial;  // those without one come first
  std::string Number;
  Date Day;
  std::string Book;
  Amount Value;
  std::string Nature;
  Date Cleared;
  std::int64_t Narration;

  static Entry Of(const CDataSet& row) {
    std::size_t field = 0;
    const auto next = [&] { return row.Field(field++); };
    Entry entry{};
    entry.Voucher = next().ToInteger();
    entry.Line = next().ToInteger();
    if (const Variant serial = next(); !serial.IsNull()) entry.Serial = serial.ToInteger();
    entry.Number = next().ToText();
    entry.Day = next().ToDate();
    entry.Book = next().ToText();
    entry.Value = next().ToAmount();
    entry.Nature = next().ToText();
    entry.Cleared = next().ToDate();
    entry.Narration = next().ToInteger();
    return entry;
  }

  /// Reads on to the end of the day at hand.
  static void ReadDay(CDataSet& entries, std::vector<Entry>& day) {
    day.clear();
    do {
      day.push_back(Of(entries));
      entries.MoveNext();
    } while (!entries.Eof() && entries.Field("dVchDate").ToDate() == day.back().Day);
    std::sort(day.begin(), day.end(), [](const Entry& a, const Entry& b) {
      return std::tie(a.Serial, a.Voucher, a.Line) < std::tie(b.Serial, b.Voucher, b.Line);
    });
  }
};

Variant frmAccount::Master::Get(const std::string& member) {
  const std::string name = text::Lower(member);
  if (name == "achead") return AcHead;
  if (name == "station") return Station;
  return Object::Get(member);
}

frmAccount::frmAccount()
    : ListScreen(kScreen, Origin::Desk),
      lblTitle1(*this, "lblTitle1", {0, 1, 2}),
      lblTitle2(*this, "lblTitle2"),
      mmOthers(*this, "mmOthers") {
  MemberPeriod(*this);
  Member("WithOpening", WithOpening);
  Member("FAMaster", FAMaster);
  Member("MarksRead", MarksRead);
  Routine("Filter", &frmAccount::Filter);
  mmOthers.Click = [this](int item) { others_.at(static_cast<std::size_t>(item)).Open(*this); };
}

void frmAccount::LoadScreen() {
  DesignControls();
  if (Date1.IsEmpty()) Date1 = gSession->Year().StartDate();
  if (Date2.IsEmpty()) Date2 = gSession->Year().EndDate();
  lblTitle1(0).Caption = "   Statement of Account";
  SetColumns();
  if (AccountCode != 0) RequireMaster();
}

void frmAccount::FirstShow() {
  if (AccountCode != 0 || AskAccount()) {
    FillGrid();
  } else {
    gRuntime->Unload(*this);
  }
}

bool frmAccount::AskAccount() {
  const FlagHold asking(asking_);
  const std::optional<PickedAccount> picked = PickAccount(*this);
  if (picked) {
    AccountCode = picked->Code;
    filter_.Remove();
  }
  return picked.has_value();
}

/// What stands on this statement keeps it as it is, so the other account gets a statement of its own.
void frmAccount::OpenAnother() {
  const auto other = std::make_shared<frmAccount>();
  other->Date1 = Date1;
  other->Date2 = Date2;
  gApp->ShowForm(other);
}

void frmAccount::AskPeriod() {
  if (!RequireNothingStandsOnIt()) return;
  CDateDialog dialog;
  dialog.Title("Period of the Statement");
  dialog.DateCaption("From");
  dialog.SetDate1(Date1);
  dialog.SetDate2(Date2);
  do {
    if (!dialog.Show()) return;
  } while (!IsInYear(dialog));
  Date1 = dialog.Date1();
  Date2 = dialog.Date2();
  FillGrid();
}

bool frmAccount::ReadMaster() {
  CDataSet account;
  account.Open("Select mhd,mst from FAMaster where mcd=" + books::SqlNumber(AccountCode), gSession->MainDb());
  if (account.Eof()) return false;
  FAMaster->AcHead = account.Field("mhd").ToText();
  FAMaster->Station = account.Field("mst").ToText();
  return true;
}

void frmAccount::RequireMaster() {
  if (!ReadMaster()) throw HostError("There is no account with the code " + std::to_string(AccountCode));
}

void frmAccount::ShowTitles() {
  MStrip1.Code = AccountCode;
  lblTitle1(1).Caption = "F.Y. " + YearName(gSession->Year().StartYear());
  lblTitle1(2).Caption = PeriodText();
  const bool filtered = filter_.IsInForce();
  lblTitle2.Caption = filtered      ? filter_.Words()
                      : WithOpening ? "With Opening Balance"
                                    : "Without Opening Balance";
  lblTitle2.BackColor = filtered ? kFilterColor : kDefaultColor;
  lblTitle2.ToolTipText = filtered ? lblTitle2.Caption() + ". Ctrl+Shift+L shows all entries again." : "";
}

void frmAccount::FillGrid() {
  RequireMaster();
  FillRows();
}

void frmAccount::FillRows() {
  const BusyPointer pointer;
  ShowTitles();
  GridFill fill(Grid,
                FAMaster->Station.empty() ? FAMaster->AcHead : FAMaster->AcHead + ", " + FAMaster->Station);
  Grid.Clear();
  Grid.Rows = 1;
  Sums sums;
  int row = 0;
  if (WithOpening) AddOpening(row, sums);
  AddEntries(row, sums);
  Grid.Rows = std::max(row + 1, 2);
  ShowTotals(sums);
  if (filter_.IsInForce()) ShowFiltered();
  PutCursorOn(1);
  ++MarksRead;
  fill.Done();
}

void frmAccount::ShowTotals(const Sums& sums) {
  quillon::ShowTotals(Grid, 0, col::kNarration, "Totals",
                      {{col::kDebit, sums.debits}, {col::kCredit, sums.credits}});
  Grid.Footer.SetTextMatrix(0, col::kBalance, BalanceText(sums.balance, "C2"));
}

/// The balance after the last entry is not what these come to, so that none stands under them.
void frmAccount::ShowFiltered() {
  const AccountFilter::Sums sums = filter_.HideRows(Grid);
  quillon::ShowTotals(Grid, 0, col::kNarration, "Totals of these entries",
                      {{col::kDebit, sums.Debits}, {col::kCredit, sums.Credits}});
  Grid.Footer.SetTextMatrix(0, col::kBalance, "");
}

/// On that row or, where the filter hides it, on the next one that is to be seen.
void frmAccount::PutCursorOn(int row) {
  const int seen = Grid.VisibleRowFrom(row, 1);
  Grid.Row = seen > 0 ? seen : std::max(Grid.VisibleRowFrom(row, -1), 1);
}

Amount frmAccount::Opening() const {
  return gSession->MainDb()
      .Lookup("FADATA", "Sum(dAmt)",
              "dcd=" + std::to_string(AccountCode) + " and (dVchDate<" + gStd->SqlDate(Date1) + " or " +
                  books::IsOpening() + ") and " + books::InBalances())
      .ToAmount();
}

void frmAccount::AddOpening(int& row, Sums& sums) {
  const Amount opening = Opening();
  if (opening.IsZero()) return;
  Grid.Rows = ++row + 1;
  sums.Add(opening);
  Grid.SetTextMatrix(row, col::kBookCode, books::kOpeningBook);
  Grid.SetTextMatrix(row, col::kSerial, std::to_string(row));
  Grid.SetTextMatrix(row, col::kDate, Date1.Text());
  Grid.SetTextMatrix(row, col::kBook, books::kOpeningBook);
  Grid.SetTextMatrix(row, col::kNarration, "Opening Balance");
  Grid.SetTextMatrix(row, opening < Amount() ? col::kCredit : col::kDebit,
                     gStd->FormatAmount(opening.Abs(), "c2"));
  Grid.SetTextMatrix(row, col::kBalance, BalanceText(sums.balance, "C2"));
}

std::string frmAccount::EntriesCondition() const {
  return "a.dcd=" + books::SqlNumber(AccountCode) + " and a.dVchDate between " + gStd->SqlDate(Date1, Date2) +
         " and " + books::InLists("a.dBook");
}

std::unordered_set<std::int64_t> frmAccount::ReturnedVouchers() const {
  std::unordered_set<std::int64_t> returned;
  CDataSet docs;
  for (docs.Open("Select VoucherID from FADocs where ChqReturn='Y'", gSession->MainDb()); !docs.Eof();
       docs.MoveNext()) {
    returned.insert(docs.Field(std::size_t{0}).ToInteger());
  }
  return returned;
}

/// The rows come by day in the order of an index, so that the first are there at once; a day's are put in
/// their order here.
void frmAccount::AddEntries(int& row, Sums& sums) {
  const std::unordered_set<std::int64_t> returned = ReturnedVouchers();
  const auto narrations = std::make_shared<NarrationTexts>(gSession->MainDb());
  CDataSet entries;
  entries.Open(
      "Select a.VoucherID,a.dVchSubNo,a.dSrNo,a.dVchNo,a.dVchDate,a.dBook,a.dAmt,a.dTrnNature,a.dBankDate,"
      "a.NarrationID from FAData a where " +
          EntriesCondition() + " order by a.dVchDate",
      gSession->MainDb());
  constexpr int kMoreRows = 1000;
  Progress progress("Reading the entries", Grid);
  std::vector<Entry> day;
  while (!entries.Eof()) {
    Entry::ReadDay(entries, day);
    for (const Entry& entry : day) {
      if (++row >= Grid.Rows) Grid.Rows = row + kMoreRows;
      AddEntry(entry, row, returned.contains(entry.Voucher), sums);
      if (entry.Narration != 0) {
        Grid.SetTextLater(row, col::kNarration, narrations, narrations->Add(entry.Narration));
      }
      progress.Step();
    }
  }
}

void frmAccount::AddEntry(const Entry& entry, int row, bool returned, Sums& sums) {
  sums.Add(entry.Value);
  Grid.SetTextMatrix(row, col::kVoucherId, std::to_string(entry.Voucher));
  Grid.SetTextMatrix(row, col::kBookCode, entry.Book);
  Grid.SetTextMatrix(row, col::kNature, entry.Nature);
  Grid.SetTextMatrix(row, col::kClearedOn, entry.Cleared.Text());
  Grid.SetTextMatrix(row, col::kVchSubNo, std::to_string(entry.Line));
  Grid.SetTextMatrix(row, col::kSerial, std::to_string(row));
  Grid.SetTextMatrix(row, col::kVchNo, entry.Number);
  Grid.SetTextMatrix(row, col::kDate, entry.Day.Text());
  Grid.SetTextMatrix(row, col::kBook, entry.Book);
  Grid.SetTextMatrix(row, entry.Value < Amount() ? col::kCredit : col::kDebit,
                     gStd->FormatAmount(entry.Value.Abs(), "c2"));
  Grid.SetTextMatrix(row, col::kBalance, BalanceText(sums.balance, "C2"));
  if (returned) Grid.SetTextMatrix(row, col::kReturned, "Y");
}

void frmAccount::Pressed(const std::string& key) {
  if (key == "Account") {
    if (!gRuntime->StandingOn(*this).empty()) {
      OpenAnother();
    } else if (AskAccount()) {
      FillGrid();
    }
  } else if (key == "Period") {
    AskPeriod();
  } else if (key == "Interest" || key == "Reconciliation") {
    OpenWorkbench(key == "Interest");
  } else if (key == "Marking") {
    OpenMarking();
  } else if (key == "Others") {
    PopupOthers();
  }
}

void frmAccount::PopupOthers() {
  PopupMenu(mmOthers, BtnBar1.Left + BtnBar1.Buttons("Others").Left(), BtnBar1.Top);
}

void frmAccount::AskFilter() {
  if (!RequireNothingStandsOnIt()) return;
  {
    const FlagHold asking(asking_);
    if (!filter_.Ask()) return;
  }
  FillGrid();
  if (filter_.IsInForce()) gRuntime->Say("Ctrl+Shift+L shows all entries again.");
}

void frmAccount::Filter() {
  if (!filter_.IsInForce()) {
    AskFilter();
  } else if (RequireNothingStandsOnIt()) {
    filter_.Remove();
    ReadAnew();
    gRuntime->Say("All entries are shown.");
  }
}

void frmAccount::Print(bool print) {
  CReportOptions options;
  options.SetOption("MainHeadForm1", "AcMain1");
  options.SetOption("MainHeadForm2", "AcMain2");
  gReports->ShowGrid(Grid, &options, "Statement of Account: " + Grid.Title,
                     lblTitle1(2).Caption + (filter_.IsInForce() ? "   " + filter_.Words() : ""), 3, print);
}

FormPtr frmAccount::ModuleScreen(const std::string& key) { return quillon::ModuleScreen(*this, key); }

bool frmAccount::RequireBankAccount() const {
  const Variant group =
      gSession->MainDb().Lookup("FAMaster", "mbshno", "mcd=" + books::SqlNumber(AccountCode));
  if (group.ToInteger() == books::kBankGroup) return true;
  gStd->MsgBox("Only a bank account has cheque leaves.", "", "W");
  return false;
}

bool frmAccount::RequireNothingStandsOnIt() const {
  if (gRuntime->StandingOn(*this).empty()) return true;
  gStd->MsgBox("Close the reconciliation of this statement first.", "", "W");
  return false;
}

void frmAccount::OpenWorkbench(bool interest) {
  if (!RequireComplete(Grid)) return;
  const FormPtr workbench = ModuleScreen("acreconciliation");
  if (!workbench) return;
  workbench->Set("bCalcInt", interest);
  gApp->ShowForm(workbench);
}

void frmAccount::OpenMarking() {
  const FormPtr markings = ModuleScreen("acreconciliationmark");
  if (!markings) return;
  markings->Set("FYear", std::static_pointer_cast<Object>(gSession->CurrentYear()));
  ShowForPeriod(*markings);
}

void frmAccount::ShowForPeriod(Form& screen) {
  screen.Set("AccountCode", AccountCode);
  screen.Set("Date1", Date1);
  screen.Set("Date2", Date2);
  gApp->ShowForm(screen.Self());
}

/// Other screens may have changed the books meanwhile.
void frmAccount::ShownAgain() {
  if (asking_ || AccountCode == 0) return;
  if (gRuntime->StandingOn(*this).empty()) {
    ReadAnew();
  } else {
    ReadMarks();
  }
}

/// The cursor stays on its entry.
void frmAccount::ReadAnew() {
  if (!ReadMaster()) {
    gStd->MsgBox(
        FAMaster->AcHead + " is no longer among the accounts: it was merged with another or deleted.", "",
        "W");
    gRuntime->Unload(*this);
    return;
  }
  const int row = Grid.Row;
  const int column = Grid.Col;
  const auto entry = books::EntryKey::OfRow(Grid, row, col::kVoucherId, col::kVchSubNo);
  FillRows();
  const std::vector<int> found = books::EntryRows(Grid, col::kVoucherId, col::kVchSubNo).Find(entry);
  PutCursorOn(found.empty() ? std::min(row, Grid.Rows - 1) : found.front());
  Grid.Col = column;
}

/// The rows stay, for a screen stands on them; only what others store into the books is read.
void frmAccount::ReadMarks() {
  const BusyPointer pointer;
  const std::unordered_set<std::int64_t> returned = ReturnedVouchers();
  const books::EntryRows rows(Grid, col::kVoucherId, col::kVchSubNo);
  CDataSet entries;
  for (entries.Open("Select a.VoucherID,a.dVchSubNo,a.dBankDate from FAData a where " + EntriesCondition(),
                    gSession->MainDb());
       !entries.Eof(); entries.MoveNext()) {
    const books::EntryKey entry{entries.Field(std::size_t{0}).ToInteger(),
                                entries.Field(std::size_t{1}).ToInteger()};
    const std::string cleared = entries.Field(std::size_t{2}).ToDate().Text();
    for (const int row : rows.Find(entry)) {
      if (Grid.Cell(row, col::kClearedOn) != cleared) Grid.SetTextMatrix(row, col::kClearedOn, cleared);
      const char* const mark = returned.contains(entry.Voucher) ? "Y" : "";
      if (Grid.Cell(row, col::kReturned) != mark) Grid.SetTextMatrix(row, col::kReturned, mark);
    }
  }
  ++MarksRead;
}

void frmAccount::OpenRow(int row) {
  gApp->OpenVoucher(*this, ValInteger(Grid.Cell(row, col::kVoucherId)), gSession->Year().StartYear(),
                    AccountCode);
}

}  // namespace quillon
