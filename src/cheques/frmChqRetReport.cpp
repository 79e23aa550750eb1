#include "cheques/frmChqRetReport.h"

#include <algorithm>

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "host/forms/BusyJob.h"
#include "host/forms/GridFill.h"
#include "host/forms/GridRows.h"
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
    .lastKey = keys::kF9,
};

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
      "SELECT DISTINCT A.VOUCHERID FROM FADATA A "
      "INNER JOIN FADOCS D ON A.VOUCHERID=D.VOUCHERID WHERE A.DCD=" +
      account + " AND D.CHQRETURN='Y'";
  return "SELECT A.VOUCHERID,A.DCD,A.DVCHDATE,M.MHD,M.MST,N.NARRATION,A.DAMT,AG.MHD AS AGENTNAME "
         "FROM ((((FADATA A INNER JOIN FAMASTER M ON A.DCD=M.MCD) "
         "INNER JOIN FANAR N ON A.NARRATIONID=N.NARRATIONID) "
         "INNER JOIN FADOCS D ON A.VOUCHERID=D.VOUCHERID) INNER JOIN (" +
         vouchers +
         ") Q1 ON A.VOUCHERID=Q1.VOUCHERID) LEFT JOIN FAMASTER AG ON M.MAGENTCODE=AG.MCD "
         "WHERE A.DBOOK NOT IN (" +
         books::SqlString(books::kOpeningBook) + "," + books::SqlString(books::kMemorandumBook) +
         ") AND D.CHQRETURN='Y' AND A.DCD<>" + account + " AND A.DVCHDATE BETWEEN " + period +
         " ORDER BY A.DVCHDATE,A.DSRNO,A.DVCHSUBNO";
}

}  // namespace

frmChqRetReport::frmChqRetReport() : ListScreen(kScreen, Origin::Module), lblTitle2(*this, "lblTitle2") {
  MemberPeriod(*this);
  Routine("FillGrid", &frmChqRetReport::FillGrid);
}

void frmChqRetReport::FirstShow() {
  lblTitle2.Caption = PeriodText();
  Grid.Visible = true;
  FillGrid();
}

void frmChqRetReport::SetupGrid() {
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  SetColumnsInTwips(Grid, {
                              {col::kDate, "Date", 1000},
                              {col::kHead, "A/c Head", 2000},
                              {col::kStation, "Station", 900},
                              {col::kAgent, "Agent", 1200},
                              {col::kNarration, "Narration", 2000},
                              {col::kDebit, "Debit", 1200, kAlignRight},
                              {col::kCredit, "Credit", 1200, kAlignRight},
                          });
}

void frmChqRetReport::FillGrid() {
  const BusyJob job;
  GridFill fill(
      Grid,
      "Account: " +
          gSession->MainDb().Lookup("FAMASTER", "MHD", "MCD=" + books::SqlNumber(AccountCode)).ToText());
  Grid.Rows = 1;
  SetupGrid();
  AddLines();
  fill.Done();
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
  ShowTotals(Grid, 0, col::kHead, "Totals", {{col::kDebit, debits}, {col::kCredit, credits}});
}

void frmChqRetReport::Print(bool print) {
  gReports->ShowGrid(Grid, nullptr, lblTitle.Caption, lblTitle2.Caption, IReports::kHostRuling, print, "",
                     "Title2:=" + Grid.Title);
}

long frmChqRetReport::AccountOfRow(int row) const {
  return static_cast<long>(ValInteger(Grid.Cell(row, col::kCode)));
}

void frmChqRetReport::OpenRow(int row) {
  const std::int64_t voucher = ValInteger(Grid.Cell(row, col::kVoucherId));
  if (voucher != 0) gApp->OpenVoucher(*this, voucher, gSession->Year().StartYear(), AccountCode);
}

}  // namespace quillon
