#include "desk/screens/frmDayBook.h"

#include <algorithm>
#include <unordered_set>

#include "books/SqlText.h"
#include "desk/screens/ModuleScreen.h"
#include "desk/services/NarrationTexts.h"
#include "host/controls/CPeriod.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/GridFill.h"
#include "host/forms/GridRows.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"
#include "host/values/FlagHold.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmDayBook",
    .caption = "   Day Book",
    .titleSuffix = "",
    .rightKey = "",
    .registerTitle = "Day Book",
    .iconKey = "List",
    .firstKey = keys::kF2,
    .lastKey = keys::kF9,
    .initForm = true,
    .helpContext = 19,
};

namespace col {

constexpr int kVoucherId = 0;
constexpr int kCode = 1;
constexpr int kDate = 2;
constexpr int kBook = 3;
constexpr int kVchNo = 4;
constexpr int kHead = 5;
constexpr int kNarration = 6;
constexpr int kDocument = 7;
constexpr int kDebit = 8;
constexpr int kCredit = 9;
constexpr int kCommands = 10;
constexpr int kCount = 11;

}  // namespace col

constexpr const char* kTotalsMark = "*headingfonts**hline1*";
constexpr long kTotalsColor = 0xDCEFF5;
constexpr int kMoreRows = 1000;

}  // namespace

struct frmDayBook::Sums {
  Amount Debits;
  Amount Credits;

  void Add(Amount amount) { (amount < Amount() ? Credits : Debits) += amount.Abs(); }
};

frmDayBook::frmDayBook() : ListScreen(kScreen, Origin::Desk), lblTitle2(*this, "lblTitle2") {
  Member("Date1", Date1);
  Member("Date2", Date2);
  Routine("Filter", &frmDayBook::Filter);
}

void frmDayBook::BuildBar() {
  BtnBar1.AddButtons({"F2", "Period,F3: Period,Date", "Filter,F4: Filter,Filter", "Totals,F5: Totals,Balance",
                      "Graph,F6: Graph,Graph", "F7", "Preview,F8: Preview,Preview", "Print,F9: Print,Print",
                      "Exit,Esc: Exit,Close"});
  BtnBar1.HideButtons({"F2", "F7"});
}

void frmDayBook::LoadScreen() {
  if (Date1.IsEmpty()) Date1 = gSession->Year().StartDate();
  if (Date2.IsEmpty()) Date2 = gSession->Year().EndDate();
  MStrip1.Width = Width / 2;
  lblTitle2.Move(Width / 2, MStrip1.Top, Width / 2, MStrip1.Height);
  PlaceGrid(ContentTop());
}

void frmDayBook::SetColumns() {
  Grid.Rows = 1;
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  SetColumnsInChars(Grid, {{col::kDate, "Date", 13, kAlignLeft},
                           {col::kNarration, showsDays_ ? "Vouchers" : "Narration", 44, kAlignLeft},
                           {col::kDebit, "Debit", 17, kAlignRight},
                           {col::kCredit, "Credit", 17, kAlignRight}});
  if (showsDays_) return;
  SetColumnsInChars(Grid, {{col::kBook, "Book", 6, kAlignCentre},
                           {col::kVchNo, "Vch. No.", 10, kAlignLeft},
                           {col::kHead, "A/c Head", 34, kAlignLeft}});
  if (filter_.Documents) SetColumnsInChars(Grid, {{col::kDocument, "Document", 14, kAlignLeft}});
}

void frmDayBook::ShowTitles() {
  lblTitle2.Caption = PeriodText();
  BtnBar1.Buttons("Totals").SetCaption(showsDays_ ? "F5: Entries" : "F5: Totals");
}

void frmDayBook::FillGrid() {
  const BusyPointer pointer;
  ShowTitles();
  const std::string& words = showsDays_ ? amountWords_ : filter_.Words();
  const std::string title = showsDays_ ? "Totals of the Days" : "Entries";
  GridFill fill(Grid, words.empty() ? title : title + "   Filter: " + words);
  Grid.Clear();
  SetColumns();
  Sums sums;
  int row = 0;
  if (showsDays_) {
    AddDays(row, sums);
  } else {
    AddEntries(row, sums);
  }
  Grid.Rows = std::max(row + 1, 2);
  ShowTotals(Grid, 0, col::kNarration, "Totals", {{col::kDebit, sums.Debits}, {col::kCredit, sums.Credits}});
  Grid.Row = 1;
  fill.Done();
}

int frmDayBook::NextRow(int& row) {
  if (++row >= Grid.Rows) Grid.Rows = row + kMoreRows;
  return row;
}

// --- The entries

std::string frmDayBook::EntriesQuery() const {
  const std::string condition = filter_.Condition(Date1, Date2);
  const bool others = filter_.IsInForce() && filter_.WholeVouchers;
  return "Select a.VoucherID,a.dcd,a.dVchDate,a.dBook,a.dVchNo,b.mhd,a.dAmt,a.NarrationID from FAData a left join "
         "FAMaster b on a.dcd=b.mcd where " +
         (others
              ? "a.VoucherID in (Select a.VoucherID from FAData a left join FAMaster b on a.dcd=b.mcd where " +
                    condition + ")"
              : condition) +
         " order by a.dVchDate,a.dSrNo,a.VoucherID,a.dVchSubNo";
}

/// "17 FAS" of the vouchers that a document stands behind.
std::unordered_map<std::int64_t, std::string> frmDayBook::Documents() const {
  std::unordered_map<std::int64_t, std::string> documents;
  if (!filter_.Documents) return documents;
  CDataSet rows;
  for (rows.Open("Select DocVoucherID,DocumentID,DocSeries from DocMain order by DocumentID desc",
                 gSession->MainDb());
       !rows.Eof(); rows.MoveNext()) {
    documents[rows.Field("DocVoucherID").ToInteger()] =
        text::Trim(rows.Field("DocumentID").ToText() + " " + rows.Field("DocSeries").ToText());
  }
  return documents;
}

void frmDayBook::AddEntries(int& row, Sums& sums) {
  const std::unordered_map<std::int64_t, std::string> documents = Documents();
  const auto narrations = std::make_shared<NarrationTexts>(gSession->MainDb());
  std::unordered_set<std::int64_t> shown;
  Sums ofDay;
  Date day;
  CDataSet entries;
  Progress progress("Reading the entries", Grid);
  for (entries.Open(EntriesQuery(), gSession->MainDb()); !entries.Eof();
       entries.MoveNext(), progress.Step()) {
    const std::int64_t voucher = entries.Field("VoucherID").ToInteger();
    if (!filter_.WholeVouchers && !shown.insert(voucher).second) continue;
    const Date own = entries.Field("dVchDate").ToDate();
    if (filter_.DayTotals && !day.IsEmpty() && own != day) {
      AddDayTotals(row, day, ofDay);
      ofDay = Sums();
    }
    day = own;
    AddEntry(entries, NextRow(row), ofDay);
    sums.Add(entries.Field("dAmt").ToAmount());
    if (const std::int64_t narration = entries.Field("NarrationID").ToInteger(); narration != 0) {
      Grid.SetTextLater(row, col::kNarration, narrations, narrations->Add(narration));
    }
    if (const auto found = documents.find(voucher); found != documents.end()) {
      Grid.SetTextMatrix(row, col::kDocument, found->second);
    }
  }
  if (filter_.DayTotals && !day.IsEmpty()) AddDayTotals(row, day, ofDay);
}

void frmDayBook::AddEntry(const CDataSet& entry, int row, Sums& sums) {
  const Amount amount = entry.Field("dAmt").ToAmount();
  sums.Add(amount);
  Grid.SetTextMatrix(row, col::kVoucherId, entry.Field("VoucherID").ToText());
  Grid.SetTextMatrix(row, col::kCode, entry.Field("dcd").ToText());
  Grid.SetTextMatrix(row, col::kDate, entry.Field("dVchDate").ToDate().Text());
  Grid.SetTextMatrix(row, col::kBook, entry.Field("dBook").ToText());
  Grid.SetTextMatrix(row, col::kVchNo, entry.Field("dVchNo").ToText());
  Grid.SetTextMatrix(row, col::kHead, entry.Field("mhd").ToText());
  Grid.SetTextMatrix(row, amount < Amount() ? col::kCredit : col::kDebit,
                     gStd->FormatAmount(amount.Abs(), "c2"));
}

void frmDayBook::ShowSums(int row, const Sums& sums) {
  Grid.SetTextMatrix(row, col::kDebit, gStd->FormatAmount(sums.Debits, "C2"));
  Grid.SetTextMatrix(row, col::kCredit, gStd->FormatAmount(sums.Credits, "C2"));
}

void frmDayBook::AddDayTotals(int& row, Date day, const Sums& sums) {
  NextRow(row);
  Grid.SetTextMatrix(row, col::kNarration, "Totals of " + day.Text());
  ShowSums(row, sums);
  Grid.SetTextMatrix(row, col::kCommands, kTotalsMark);
  gStd->SetRowColors(Grid, row, 0, col::kCommands, kTotalsColor, kDefaultColor);
}

// --- The days

void frmDayBook::AddDays(int& row, Sums& sums) {
  CDataSet days;
  for (
      days.Open(
          "Select a.dVchDate,Count(distinct a.VoucherID) as Vouchers,Sum(case when a.dAmt>0 then a.dAmt else 0 "
          "end) as Debits,Sum(case when a.dAmt<0 then -a.dAmt else 0 end) as Credits from FAData a where "
          "a.dVchDate between " +
              gStd->SqlDate(Date1, Date2) + " and " + books::InLists("a.dBook") + amounts_ +
              " group by a.dVchDate order by a.dVchDate",
          gSession->MainDb());
      !days.Eof(); days.MoveNext()) {
    const Sums ofDay{days.Field("Debits").ToAmount(), days.Field("Credits").ToAmount()};
    sums.Debits += ofDay.Debits;
    sums.Credits += ofDay.Credits;
    NextRow(row);
    Grid.SetTextMatrix(row, col::kDate, days.Field("dVchDate").ToDate().Text());
    Grid.SetTextMatrix(row, col::kNarration, days.Field("Vouchers").ToText());
    ShowSums(row, ofDay);
  }
}

/// The range of amounts is asked first.
void frmDayBook::PressTotals() {
  if (!showsDays_) {
    const FlagHold asking(asking_);
    const FormPtr range = ModuleScreen(*this, "acfilter");
    if (!range) return;
    range->Set("AmtRangeOnly", true);
    gStd->ShowDialog(range, Self());
    const bool cancelled = range->Get("Cancelled").ToFlag();
    amounts_ = range->Get("FilterCnd").ToText();
    amountWords_ = range->Get("FilterTxt").ToText();
    gRuntime->Unload(*range);
    if (cancelled) return;
  }
  showsDays_ = !showsDays_;
  FillGrid();
}

// --- The buttons

void frmDayBook::Pressed(const std::string& key) {
  if (key == "Period") {
    AskPeriod();
  } else if (key == "Filter") {
    AskFilter();
  } else if (key == "Totals") {
    PressTotals();
  } else if (key == "Graph") {
    OpenGraph();
  }
}

void frmDayBook::AskPeriod() {
  CDateDialog dialog;
  dialog.Title("Period of the Day Book");
  dialog.DateCaption("From");
  dialog.SetDate1(Date1);
  dialog.SetDate2(Date2);
  if (!dialog.Show()) return;
  Date1 = dialog.Date1();
  Date2 = dialog.Date2();
  FillGrid();
}

void frmDayBook::AskFilter() {
  {
    const FlagHold asking(asking_);
    if (!filterDialog_ || !filterDialog_->IsLoaded()) {
      filterDialog_ = ModuleScreen(*this, "filterzoomold");
      if (!filterDialog_) return;
      filterDialog_->ControlAt("chkPrintVouchers").Set("Value", filter_.WholeVouchers ? 1 : 0);
    }
    auto& period = dynamic_cast<CPeriod&>(filterDialog_->ControlAt("CPeriod1"));
    period.Date1.Text = Date1.Text();
    period.Date2.Text = Date2.Text();
    gStd->ShowDialog(filterDialog_, Self());
    if (filterDialog_->Get("Cancelled").ToFlag()) return;
  }
  if (filterDialog_->Get("VATClassNo").ToInteger() != 0)
    gStd->MsgBox("These books keep no VAT class.", "", "W");
  filter_.Take(*filterDialog_);
  Date1 = filterDialog_->Get("Date1").ToDate();
  Date2 = filterDialog_->Get("Date2").ToDate();
  showsDays_ = false;
  FillGrid();
}

void frmDayBook::Filter() {
  if (!filter_.IsInForce()) {
    AskFilter();
    return;
  }
  filter_.Clear();
  if (filterDialog_) gRuntime->Unload(*filterDialog_);
  FillGrid();
  gRuntime->Say("All entries are shown.");
}

void frmDayBook::ShownAgain() {
  if (!asking_) FillGrid();
}

/// What was debited on each day.
void frmDayBook::OpenGraph() {
  const FormPtr graph = ModuleScreen(*this, "graph");
  if (!graph) return;
  graph->Set("FYear", std::static_pointer_cast<Object>(gSession->CurrentYear()));
  graph->Set("RMinDate", Date1);
  graph->Set("RMaxDate", Date2);
  graph->Set("AmtTxt", "Amount");
  graph->Set("GraphNeg", 1);
  graph->Set(
      "GraphQry",
      "Select a.dVchDate as gdate,Sum(a.dAmt) as gamt from FAData a left join FAMaster b on a.dcd=b.mcd where " +
          filter_.Condition(Date1, Date2) + " and a.dAmt>0 group by a.dVchDate order by a.dVchDate");
  graph->ControlAt("lblTitle1", 1)
      .Set("Caption", "Day Book: debits" + (filter_.IsInForce() ? "   Filter: " + filter_.Words() : ""));
  graph->ControlAt("lblTitle1", 2).Set("Caption", PeriodText());
  gApp->ShowForm(graph);
}

void frmDayBook::Print(bool print) {
  gReports->ShowGrid(Grid, nullptr, "Day Book: " + Grid.Title, lblTitle2.Caption, IReports::kHostRuling,
                     print);
}

void frmDayBook::OpenRow(int row) {
  gApp->OpenVoucher(*this, ValInteger(Grid.Cell(row, col::kVoucherId)), gSession->Year().StartYear(),
                    AccountOfRow(row));
}

long frmDayBook::AccountOfRow(int row) const {
  return static_cast<long>(ValInteger(Grid.Cell(row, col::kCode)));
}

}  // namespace quillon
