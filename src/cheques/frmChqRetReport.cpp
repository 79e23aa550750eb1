#include "cheques/frmChqRetReport.h"

#include <algorithm>

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "host/controls/RedrawHold.h"
#include "host/forms/Busy.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

// The captions name each key one place late, and people have learnt where the keys are.
constexpr ScreenSpec kScreen = {
    .className = "frmChqRetReport",
    .caption = "   Cheque Returned Report",
    .titleSuffix = "",
    .rightKey = "",
    .registerTitle = "Chq.Ret. Report",
    .iconKey = "Report",
    .firstKey = keys::kF4,
    .lastKey = keys::kF4 + 5,
};

constexpr int kHostRuling = -1;
constexpr int kOwnAlignment = -1;

namespace col {

constexpr int kVoucherId = 0;
constexpr int kCode = 1;
constexpr int kDate = 2;
constexpr int kHead = 3;
constexpr int kStation = 4;
constexpr int kAgent = 5;
constexpr int kNarration = 6;
constexpr int kDebit = 7;
constexpr int kCredit = 8;
constexpr int kCount = 12;

}  // namespace col

/// The lines that the account's vouchers with a returned cheque have on every other account.
std::string LinesQuery(const std::string& account, const std::string& period) {
  const std::string vouchers =
      "SELECT DISTINCT A.VOUCHERID FROM FADATA A INNER JOIN FADOCS D ON A.VOUCHERID=D.VOUCHERID WHERE "
      "A.DCD=" +
      account + " AND D.CHQRETURN='Y'";
  return "SELECT A.VOUCHERID,A.DCD,A.DVCHDATE,M.MHD,M.MST,N.NARRATION,A.DAMT,AG.MHD AS AGENTNAME FROM "
         "((((FADATA A "
         "INNER JOIN FAMASTER M ON A.DCD=M.MCD) INNER JOIN FANAR N ON A.NARRATIONID=N.NARRATIONID) INNER "
         "JOIN FADOCS D "
         "ON A.VOUCHERID=D.VOUCHERID) INNER JOIN (" +
         vouchers +
         ") Q1 ON A.VOUCHERID=Q1.VOUCHERID) LEFT JOIN FAMASTER AG ON M.MAGENTCODE=AG.MCD WHERE A.DBOOK NOT "
         "IN (" +
         books::SqlString(books::kOpeningBook) + "," + books::SqlString(books::kMemorandumBook) +
         ") AND D.CHQRETURN='Y' AND A.DCD<>" + account + " AND A.DVCHDATE BETWEEN " + period +
         " ORDER BY A.DVCHDATE,A.DSRNO,A.DVCHSUBNO";
}

}  // namespace

frmChqRetReport::frmChqRetReport()
    : ScreenForm(kScreen, Origin::Module), lblTitle2(*this, "lblTitle2"), Grid(*this, "Grid") {
  Member("AccountCode", AccountCode);
  Member("Date1", Date1);
  Member("Date2", Date2);
  Method("FillGrid", [this](const Array&) {
    FillGrid();
    return Variant();
  });
  Grid.DblClick = [this] { OpenVoucher(); };
  Grid.RowChange = [this](int row) { MStrip1.Code = ValInteger(Grid.Cell(row, col::kCode)); };
  Grid.KeyDown = [this](KeyEvent& key) { Grid_KeyDown(key); };
  Grid.KeyPress = [this](int& character) {
    if (character == '/') MStrip1.OpenMaster();
  };
}

void frmChqRetReport::BuildBar() {
  BtnBar1.AddButtons(
      {"", "", "", "Preview,F8: Preview,Preview", "Print,F9: Print,Print", "Exit,Esc: Exit,Close"});
}

void frmChqRetReport::LoadScreen() {
  MStrip1.Width = Width / 2;
  lblTitle2.Move(Width / 2, MStrip1.Top, Width - Width / 2, MStrip1.Height);
  Grid.Move(0, ContentTop(), Width, ContentBottom() - ContentTop());
  Grid.Font = quillon::Font{"Tahoma", 9.75, false, false, false};
  Grid.Visible = false;
}

void frmChqRetReport::FirstShow() {
  lblTitle2.Caption = "Period: " + Date1.Format("dd/MM/yyyy") + " to " + Date2.Format("dd/MM/yyyy");
  FillGrid();
  Grid.Visible = true;
}

void frmChqRetReport::SetupGrid() {
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  const auto set = [&](int column, const char* title, long width, int alignment = kOwnAlignment) {
    gStd->SetGridColumn(Grid, column, title, static_cast<double>(width), alignment);
  };
  set(col::kDate, "Date", 1000);
  set(col::kHead, "A/c Head", 2000);
  set(col::kStation, "Station", 900);
  set(col::kAgent, "Agent", 1200);
  set(col::kNarration, "Narration", 2000);
  set(col::kDebit, "Debit", 1200, kAlignRight);
  set(col::kCredit, "Credit", 1200, kAlignRight);
}

void frmChqRetReport::FillGrid() {
  const BusyJob job;
  Grid.Title = "Account: " +
               gSession->MainDb().Lookup("FAMASTER", "MHD", "MCD=" + books::SqlNumber(AccountCode)).ToText();
  const RedrawHold hold(Grid);
  Grid.Rows = 1;
  SetupGrid();
  AddLines();
}

void frmChqRetReport::AddLines() {
  CDataSet lines;
  lines.Open(LinesQuery(books::SqlNumber(AccountCode), gStd->SqlDate(Date1, Date2)), gSession->MainDb());
  Amount debits;
  Amount credits;
  int row = 0;
  for (; !lines.Eof(); lines.MoveNext()) {
    gStd->NextGridRow(row, Grid);
    const Amount amount = lines.Field("DAMT").ToAmount();
    const bool debit = amount > Amount();
    (debit ? debits : credits) += amount.Abs();
    Grid.SetTextMatrix(row, col::kVoucherId, lines.Field("VOUCHERID").ToText());
    Grid.SetTextMatrix(row, col::kCode, lines.Field("DCD").ToText());
    Grid.SetTextMatrix(row, col::kDate, lines.Field("DVCHDATE").ToDate().Text());
    Grid.SetTextMatrix(row, col::kHead, lines.Field("MHD").ToText());
    Grid.SetTextMatrix(row, col::kStation, lines.Field("MST").ToText());
    Grid.SetTextMatrix(row, col::kAgent, lines.Field("AGENTNAME").ToText());
    Grid.SetTextMatrix(row, col::kNarration, lines.Field("NARRATION").ToText());
    Grid.SetTextMatrix(row, debit ? col::kDebit : col::kCredit, gStd->FormatAmount(amount.Abs(), "C2"));
  }
  Grid.Rows = std::max(row + 1, 2);
  Grid.Row = 1;
  AddTotals(debits, credits);
}

void frmChqRetReport::AddTotals(Amount debits, Amount credits) {
  Grid.Footer.Clear();
  Grid.Footer.SetRows(1);
  Grid.Footer.SetTextMatrix(0, col::kHead, "Totals");
  Grid.Footer.SetTextMatrix(0, col::kDebit, gStd->FormatAmount(debits, "C2"));
  Grid.Footer.SetTextMatrix(0, col::kCredit, gStd->FormatAmount(credits, "C2"));
}

void frmChqRetReport::ButtonPressed(int index) {
  const std::string key = BtnBar1.Buttons(index).Key();
  if (key == "Preview" || key == "Print") {
    gReports->ShowGrid(Grid, nullptr, lblTitle.Caption, lblTitle2.Caption, kHostRuling, key == "Print", "",
                       "Title2:=" + Grid.Title);
  } else if (key == "Exit") {
    PressExit();
  }
}

void frmChqRetReport::Grid_KeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kEnter || key.Shift != 0) return;
  key.KeyCode = 0;
  OpenVoucher();
}

void frmChqRetReport::OpenVoucher() {
  const std::int64_t voucher = ValInteger(Grid.Cell(Grid.Row, col::kVoucherId));
  if (voucher != 0) gApp->OpenVoucher(*this, voucher, gSession->Year().StartYear(), AccountCode);
}

}  // namespace quillon
