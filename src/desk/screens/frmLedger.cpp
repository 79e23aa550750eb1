#include "desk/screens/frmLedger.h"

#include <algorithm>

#include "books/SqlText.h"
#include "desk/screens/ModuleScreen.h"
#include "desk/services/NarrationTexts.h"
#include "host/data/CDataSet.h"
#include "host/data/TransactionScope.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/GridFill.h"
#include "host/forms/Progress.h"
#include "host/services/BalanceText.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmLedger",
    .caption = "   Ledger",
    .titleSuffix = "",
    .rightKey = "",
    .registerTitle = "Ledger",
    .iconKey = "AcStatement",
    .firstKey = keys::kF2,
    .lastKey = keys::kF9,
    .initForm = true,
    .helpContext = 18,
};

namespace col {

constexpr int kVoucherId = 0;
constexpr int kCode = 1;
constexpr int kDate = 2;
constexpr int kBook = 3;
constexpr int kVchNo = 4;
constexpr int kNarration = 5;
constexpr int kDebit = 6;
constexpr int kCredit = 7;
constexpr int kBalance = 8;
constexpr int kCommands = 9;
constexpr int kCount = 10;

}  // namespace col

constexpr const char* kHeadingFont = "*headingfonts*";
constexpr const char* kTotalsMark = "*headingfonts**hline1*";
constexpr long kHeadingColor = 0xDCEFF5;
constexpr int kMoreRows = 1000;

}  // namespace

struct frmLedger::Sums {
  Amount Debits;
  Amount Credits;
  Amount Balance;
};

frmLedger::frmLedger() : ListScreen(kScreen, Origin::Desk), lblTitle2(*this, "lblTitle2") {
  static int opened = 0;
  name_ = "Ledger " + std::to_string(++opened);
  Member("Date1", Date1);
  Member("Date2", Date2);
  Routine("OpenIndex", &frmLedger::OpenIndex);
}

void frmLedger::BuildBar() {
  BtnBar1.AddButtons({"Accounts,F2: Accounts,Customers", "Period,F3: Period,Date", "F4",
                      "Index,F5: Index,List", "F6", "F7", "Preview,F8: Preview,Preview",
                      "Print,F9: Print,Print", "Exit,Esc: Exit,Close"});
  BtnBar1.HideButtons({"F4", "F6", "F7"});
}

void frmLedger::LoadScreen() {
  if (Date1.IsEmpty()) Date1 = gSession->Year().StartDate();
  if (Date2.IsEmpty()) Date2 = gSession->Year().EndDate();
  MStrip1.Width = Width / 2;
  lblTitle2.Move(Width / 2, MStrip1.Top, Width / 2, MStrip1.Height);
  PlaceGrid(ContentTop());
  SetColumns();
}

void frmLedger::SetColumns() {
  Grid.Rows = 1;
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  SetColumnsInChars(Grid, {{col::kDate, "Date", 13, kAlignLeft},
                           {col::kBook, "Book", 6, kAlignCentre},
                           {col::kVchNo, "Vch. No.", 10, kAlignLeft},
                           {col::kNarration, "Narration", 56, kAlignLeft},
                           {col::kDebit, "Debit", 17, kAlignRight},
                           {col::kCredit, "Credit", 17, kAlignRight},
                           {col::kBalance, "Balance", 20, kAlignRight}});
}

void frmLedger::FirstShow() {
  if (AskAccounts()) {
    FillGrid();
  } else {
    gRuntime->Unload(*this);
  }
}

bool frmLedger::AskAccounts() {
  if (!filter_ || !filter_->IsLoaded()) filter_ = gApp->GetForm("FilterAc");
  gStd->ShowDialog(filter_, Self());
  if (filter_->Get("Cancelled").ToFlag()) return false;
  condition_ = filter_->Get("AcCnd").ToText();
  words_ = filter_->Get("CaptionTitle").ToText();
  return true;
}

void frmLedger::AskPeriod() {
  CDateDialog dialog;
  dialog.Title("Period of the Ledger");
  dialog.DateCaption("From");
  dialog.SetDate1(Date1);
  dialog.SetDate2(Date2);
  if (!dialog.Show()) return;
  Date1 = dialog.Date1();
  Date2 = dialog.Date2();
  FillGrid();
}

// --- The rows

void frmLedger::FillGrid() {
  const BusyPointer pointer;
  lblTitle2.Caption = PeriodText();
  GridFill fill(Grid, words_.empty() ? "All Accounts" : words_);
  Grid.Clear();
  Grid.Rows = 1;
  ReadAccounts();
  const auto narrations = std::make_shared<NarrationTexts>(gSession->MainDb());
  int row = 0;
  Progress progress("Reading the accounts", static_cast<std::int64_t>(accounts_.size()));
  for (Account& account : accounts_) {
    AddAccount(account, narrations, row);
    progress.Step();
  }
  std::erase_if(accounts_, [](const Account& account) { return account.FirstRow == 0; });
  Grid.Rows = std::max(row + 1, 2);
  Grid.Row = 1;
  fill.Done();
}

void frmLedger::ReadAccounts() {
  accounts_.clear();
  CDataSet accounts;
  for (accounts.Open("Select b.mcd,b.mhd,b.mst from FAMaster b" +
                         (condition_.empty() ? "" : " where " + condition_) + " order by b.mhd,b.mst,b.mcd",
                     gSession->MainDb());
       !accounts.Eof(); accounts.MoveNext()) {
    accounts_.push_back(
        {accounts.Field("mcd").ToInteger(), accounts.Field("mhd").ToText(), accounts.Field("mst").ToText()});
  }
}

int frmLedger::AddRow(int& row, std::int64_t account) {
  if (++row >= Grid.Rows) Grid.Rows = row + kMoreRows;
  Grid.SetTextMatrix(row, col::kCode, std::to_string(account));
  return row;
}

void frmLedger::ShowAmount(int row, Amount amount, Sums& sums) {
  const bool credit = amount < Amount();
  (credit ? sums.Credits : sums.Debits) += amount.Abs();
  sums.Balance += amount;
  Grid.SetTextMatrix(row, credit ? col::kCredit : col::kDebit, gStd->FormatAmount(amount.Abs(), "c2"));
  Grid.SetTextMatrix(row, col::kBalance, BalanceText(sums.Balance, "C2"));
}

/// An account without an entry and without a balance takes no place.
void frmLedger::AddAccount(Account& account, const std::shared_ptr<NarrationTexts>& narrations, int& row) {
  const int before = row;
  Sums sums;
  const int heading = AddRow(row, account.Code);
  const Amount opening =
      gSession->MainDb()
          .Lookup("FADATA", "Sum(dAmt)",
                  "dcd=" + std::to_string(account.Code) + " and (dVchDate<" + gStd->SqlDate(Date1) + " or " +
                      books::IsOpening() + ") and " + books::InBalances())
          .ToAmount();
  if (!opening.IsZero()) {
    Grid.SetTextMatrix(AddRow(row, account.Code), col::kDate, Date1.Text());
    Grid.SetTextMatrix(row, col::kNarration, "Opening Balance");
    ShowAmount(row, opening, sums);
  }
  AddEntries(account, narrations, row, sums);
  if (row == heading) {
    row = before;
    Grid.SetTextMatrix(heading, col::kCode, "");
    return;
  }
  Grid.SetTextMatrix(heading, col::kNarration,
                     account.Station.empty() ? account.Head : account.Head + ", " + account.Station);
  Grid.SetTextMatrix(heading, col::kCommands, kHeadingFont);
  gStd->SetRowColors(Grid, heading, 0, col::kCommands, kHeadingColor, kDefaultColor);
  const int totals = AddRow(row, account.Code);
  Grid.SetTextMatrix(totals, col::kNarration, "Totals");
  Grid.SetTextMatrix(totals, col::kDebit, gStd->FormatAmount(sums.Debits, "C2"));
  Grid.SetTextMatrix(totals, col::kCredit, gStd->FormatAmount(sums.Credits, "C2"));
  Grid.SetTextMatrix(totals, col::kBalance, BalanceText(sums.Balance, "C2"));
  Grid.SetTextMatrix(totals, col::kCommands, kTotalsMark);
  account.FirstRow = heading;
  account.LastRow = totals;
}

void frmLedger::AddEntries(const Account& account, const std::shared_ptr<NarrationTexts>& narrations,
                           int& row, Sums& sums) {
  CDataSet entries;
  for (entries.Open("Select a.VoucherID,a.dVchDate,a.dBook,a.dVchNo,a.dAmt,a.NarrationID from FAData a where "
                    "a.dcd=" +
                        std::to_string(account.Code) + " and a.dVchDate between " +
                        gStd->SqlDate(Date1, Date2) + " and " + books::InLists("a.dBook") +
                        " order by a.dVchDate,a.dSrNo,a.VoucherID,a.dVchSubNo",
                    gSession->MainDb());
       !entries.Eof(); entries.MoveNext()) {
    AddRow(row, account.Code);
    std::size_t field = 0;
    const auto next = [&] { return entries.Field(field++); };
    Grid.SetTextMatrix(row, col::kVoucherId, next().ToText());
    Grid.SetTextMatrix(row, col::kDate, next().ToDate().Text());
    Grid.SetTextMatrix(row, col::kBook, next().ToText());
    Grid.SetTextMatrix(row, col::kVchNo, next().ToText());
    ShowAmount(row, next().ToAmount(), sums);
    if (const std::int64_t narration = next().ToInteger(); narration != 0) {
      Grid.SetTextLater(row, col::kNarration, narrations, narrations->Add(narration));
    }
  }
}

// --- The buttons

void frmLedger::Pressed(const std::string& key) {
  if (key == "Accounts") {
    if (AskAccounts()) FillGrid();
  } else if (key == "Period") {
    AskPeriod();
  } else if (key == "Index" && RequireComplete(Grid)) {
    OpenIndex();
  }
}

void frmLedger::Print(bool print) {
  gReports->ShowGrid(Grid, nullptr, Title() + ": " + Grid.Title, lblTitle2.Caption, IReports::kHostRuling,
                     print);
}

void frmLedger::OpenRow(int row) {
  gApp->OpenVoucher(*this, ValInteger(Grid.Cell(row, col::kVoucherId)), gSession->Year().StartYear(),
                    AccountOfRow(row));
}

long frmLedger::AccountOfRow(int row) const {
  return static_cast<long>(ValInteger(Grid.Cell(row, col::kCode)));
}

// --- The index

void frmLedger::OpenIndex() {
  const FormPtr index = ModuleScreen(*this, "ledgerindex");
  if (!index) return;
  StorePages();
  index->Set("TblName", "(Select * from LedgerPages where Ledger=" + books::SqlString(name_) + ") p");
  index->Set("Title", "   Index of " + Title() + ": " + Grid.Title);
  index->Set("Title1", lblTitle2.Caption());
  index->Set("Date1", Date1);
  index->Set("Date2", Date2);
  index->Set("WithOpening", true);
  gRuntime->Show(index, false, Self());
}

void frmLedger::DropPages() {
  gSession->MainDb().Execute("delete from LedgerPages where Ledger=" + books::SqlString(name_));
}

void frmLedger::StorePages() {
  const BusyPointer pointer;
  const std::vector<int> pages = gReports->PagesOfRows(Grid, nullptr, Title() + ": " + Grid.Title,
                                                       lblTitle2.Caption, IReports::kHostRuling);
  TransactionScope work(gSession->MainDb());
  DropPages();
  for (const Account& account : accounts_) {
    const auto page = [&](int row) { return std::to_string(pages.at(static_cast<std::size_t>(row))); };
    gSession->MainDb().Execute("insert into LedgerPages (Ledger,AcCode,AcHead,Station,Page1,Page2) values (" +
                               books::SqlString(name_) + "," + books::SqlNumber(account.Code) + "," +
                               books::SqlString(account.Head) + "," + books::SqlString(account.Station) +
                               "," + page(account.FirstRow) + "," + page(account.LastRow) + ")");
  }
  work.Commit();
}

void frmLedger::UnloadScreen() {
  if (!accounts_.empty()) DropPages();
  accounts_.clear();
}

}  // namespace quillon
