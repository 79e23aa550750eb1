#include "entry/frmLedgerIndex.h"

#include "books/SqlText.h"
#include "host/controls/RedrawHold.h"
#include "host/data/CDataSet.h"
#include "host/forms/GridColumns.h"
#include "host/forms/GridRows.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmLedgerIndex",
    .caption = "   Ledger Index",
    .titleSuffix = "",
    .rightKey = "",
    .registerTitle = "Ledger Index",
    .iconKey = "List",
    .firstKey = keys::kF4,
    .lastKey = keys::kF9,
    .initForm = true,
    .helpContext = 17,
};

namespace col {

constexpr int kSerial = 0;
constexpr int kHead = 1;
constexpr int kStation = 2;
constexpr int kPages = 3;
constexpr int kDebit = 5;
constexpr int kCredit = 6;
constexpr int kCode = 7;
constexpr int kCount = 10;

}  // namespace col

constexpr const char* kNoBalance = "---   ";
constexpr double kFigureWidth = 10;

}  // namespace

frmLedgerIndex::frmLedgerIndex()
    : ScreenForm(kScreen, Origin::Module), lblGridTitle(*this, "lblGridTitle"), Grid(*this, "Grid") {
  Member("TblName", TblName);
  Member("Title", Title);
  Member("Title1", Title1);
  Member("Date1", Date1);
  Member("Date2", Date2);
  Member("WithOpening", WithOpening);
  Member("StockIndex", StockIndex);
  Routine("Fill", &frmLedgerIndex::Fill);
  Connect();
}

void frmLedgerIndex::Connect() {
  Grid.RowChange = [this](int row) {
    if (!StockIndex && row >= 1 && row < Grid.Rows)
      MStrip1.Code = static_cast<long>(ValInteger(Grid.Cell(row, col::kCode)));
  };
  Grid.DblClick = [this] { OpenAccount(); };
  Grid.KeyDown = [this](KeyEvent& key) {
    if (key.KeyCode != keys::kEnter || key.Shift != 0) return;
    key.KeyCode = 0;
    OpenAccount();
  };
  Grid.KeyPress = [this](int& character) {
    if (character == keys::kSlash) MStrip1.OpenMaster();
  };
}

void frmLedgerIndex::BuildBar() {
  BtnBar1.AddButtons({"ShowBalance,F4: Show Balance,Balance", "Master,F5 : Master,Master", "F6", "F7",
                      "Preview,F8 : Preview", "Print,F9 : Print", "Exit,Esc : Exit"});
  BtnBar1.HideButtons({"F6", "F7"});
  if (StockIndex) BtnBar1.HideButtons({"ShowBalance"});
}

void frmLedgerIndex::LoadScreen() {
  constexpr long kTitleHeight = 345;
  constexpr long kUnderTitle = 100;
  constexpr long kEdge = 90;
  lblTitle.Caption = text::Trim(Title) + "   ";
  lblGridTitle.Caption = Title1;
  lblGridTitle.Move(kEdge, ContentTop(), Width - kEdge, kTitleHeight);
  const long top = ContentTop() + kTitleHeight + kUnderTitle;
  Grid.Move(0, top, Width, ContentBottom() - top);
  Grid.Font = quillon::Font{"Tahoma", 9.75, false, false, false};
  gStd->SetupGrid(Grid);
}

void frmLedgerIndex::SetColumns() {
  const double width = showBalance_ ? kFigureWidth : 0;
  Grid.HideAllColumns();
  SetColumnsInChars(Grid, {{col::kSerial, "S.No.", 5, kAlignCentre},
                           {col::kHead, "A/c Head", 30, kAlignLeft},
                           {col::kPages, "Page No.", 11, kAlignCentre},
                           {col::kDebit, "", width, kAlignRight},
                           {col::kCredit, "", width, kAlignRight}});
  if (!StockIndex) SetColumnsInChars(Grid, {{col::kStation, "Station", 15, kAlignLeft}});
}

/// What was read before a failure stays.
void frmLedgerIndex::Fill() {
  const RedrawHold hold(Grid);
  try {
    Grid.Rows = 1;
    Grid.Cols = col::kCount;
    SetColumns();
    AddRows();
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "Fill");
  }
  Grid.FixedRows = 1;
}

void frmLedgerIndex::AddRows() {
  const std::string condition = BalanceCondition();
  CDataSet accounts;
  GridRows rows(Grid);
  Progress progress("Reading the balances", Grid);
  for (accounts.Open("Select * from " + TblName + " order by AcHead", gSession->MainDb()); !accounts.Eof();
       accounts.MoveNext(), progress.Step()) {
    const int row = rows.Next();
    const std::string account = accounts.Field("AcCode").ToText();
    Grid.SetTextMatrix(row, col::kSerial, std::to_string(row));
    Grid.SetTextMatrix(row, col::kHead, accounts.Field("AcHead").ToText());
    Grid.SetTextMatrix(row, col::kStation, accounts.Field("Station").ToText());
    Grid.SetTextMatrix(row, col::kPages,
                       accounts.Field("Page1").ToText() + "-" + accounts.Field("Page2").ToText());
    Grid.SetTextMatrix(row, col::kCode, account);
    if (!StockIndex) ShowBalanceOf(row, account, condition);
  }
  rows.Finish();
  Grid.Row = 1;
}

std::string frmLedgerIndex::BalanceCondition() const {
  return "dBook<>'MEM'" + (WithOpening ? " and dVchDate<=" + gStd->SqlDate(Date2)
                                       : " and dVchDate between " + gStd->SqlDate(Date1, Date2));
}

/// They are read whether they are to be seen or not, so that showing them asks nothing.
void frmLedgerIndex::ShowBalanceOf(int row, const std::string& account, const std::string& condition) {
  const Amount balance =
      gSession->MainDb()
          .Lookup("FADATA", "Sum(dAmt)",
                  condition + " and dcd=" + books::SqlNumber(account) + " and dBook<>'MEM'")
          .ToAmount();
  if (balance.IsZero()) {
    for (const int column : {col::kDebit, col::kCredit}) Grid.SetTextMatrix(row, column, kNoBalance);
  } else {
    Grid.SetTextMatrix(row, balance > Amount() ? col::kDebit : col::kCredit,
                       gStd->FormatValue(balance.Abs(), "c2"));
  }
}

void frmLedgerIndex::Pressed(const std::string& key) {
  if (key == "ShowBalance") {
    FlipBalances();
  } else if (key == "Master") {
    int code = 'M';
    int shift = keys::kCtrl;
    gApp->FormKeyDown(code, shift, *this);
  }
}

void frmLedgerIndex::FlipBalances() {
  showBalance_ = !showBalance_;
  SetColumns();
  BtnBar1.Buttons("ShowBalance").SetCaption(showBalance_ ? "F4: Hide Balance" : "F4: Show Balance");
}

void frmLedgerIndex::Print(bool print) {
  gReports->ShowGrid(Grid, nullptr, lblTitle.Caption, lblGridTitle.Caption, 0, print);
}

void frmLedgerIndex::OpenAccount() {
  const int row = Grid.Row;
  const std::int64_t account = row < Grid.Rows ? ValInteger(Grid.Cell(row, col::kCode)) : 0;
  if (account == 0) return;
  const FormPtr statement = gApp->MainModule().GetForm("Account");
  statement->CallingForm = Self();
  statement->Set("Date1", Date1);
  statement->Set("Date2", Date2);
  statement->Set("WithOpening", WithOpening);
  statement->Set("AccountCode", account);
  gRuntime->Show(statement, false, Self());
}

}  // namespace quillon
