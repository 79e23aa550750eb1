#include "graph/frmGraph.h"

#include <algorithm>
#include <cmath>

#include "host/forms/BusyPointer.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kCursorKeyset = 3;
constexpr int kReadOnly = 1;
constexpr int kHundredPercent = 2;  // its place in cmbZoom
constexpr long kTableText = 0xFFFFFF;
constexpr long kMonthTitleWidth = 800;
constexpr int kCompareMode = 1;

int BaseOf(int yearAdd) {
  if (yearAdd == 0) return GraphFigures::kCurrent;
  return yearAdd < 0 ? GraphFigures::kPrevious : GraphFigures::kNext;
}

std::int16_t Short(std::int64_t number) {
  const auto narrow = static_cast<std::int16_t>(number);
  if (narrow != number) throw OverflowError();
  return narrow;
}

}  // namespace

frmGraph::frmGraph()
    : Form("frmGraph"),
      lblTitle(*this, "lblTitle"),
      lblTitle1(*this, "lblTitle1", {0, 1, 2}),
      Picture1(*this, "Picture1"),
      Label1(Picture1, "Label1", {0, 1, 2, 3, 4}),
      cmdGraphStyle(Picture1, "cmdGraphStyle", {0, 1, 2, 3, 4}),
      cmdPeriod(Picture1, "cmdPeriod", {0, 1, 2}),
      cmdCummlative(Picture1, "cmdCummlative", {0, 1}),
      cmbZoom(Picture1, "cmbZoom"),
      cmdCompare(Picture1, "cmdCompare", {0, 1, 2, 3}),
      cmdPrint(Picture1, "cmdPrint", {0}),
      cmdExit(Picture1, "cmdExit"),
      Picture2(*this, "Picture2"),
      Graph(Picture2, "Graph"),
      HScroll1(*this, "HScroll1"),
      VScroll1(*this, "VScroll1"),
      Picture3(*this, "Picture3"),
      Grid(Picture3, "Grid"),
      QuillonStdButtons1(*this, "QuillonStdButtons1") {
  Member("FYear", FYear);
  Member("FYNext", FYNext);
  Member("FYPrev", FYPrev);
  Member("RMinDate", RMinDate);
  Member("RMaxDate", RMaxDate);
  Member("GraphQry", GraphQry);
  Member("GraphQryPrv", GraphQryPrv);
  Member("GraphQryNxt", GraphQryNxt);
  Member("GraphType", GraphType);
  Member("LTitlePrev", LTitlePrev);
  Member("LTitleCurrent", LTitleCurrent);
  Member("LTitleNext", LTitleNext);
  Member("AmtTxt", AmtTxt);
  Member("UnitTxt", UnitTxt);
  Member("gColor", gColor);
  Member("ChangeColor", ChangeColor);
  Member("CompareMode", CompareMode);
  Member("CumFigures", CumFigures);
  Member("GraphNeg", GraphNeg);
  Routine("UpdateGraph", &frmGraph::UpdateGraph);
  Routine("QuarterNo", &frmGraph::QuarterNo);
  Routine("PlaceControls", &frmGraph::PlaceControls);
  DesignControls();
  ConnectButtons();
}

void frmGraph::ConnectButtons() {
  for (auto& [index, button] : cmdGraphStyle) button->Click = [this, style = index] { ChooseStyle(style); };
  for (auto& [index, button] : cmdPeriod) button->Click = [this, period = index] { ChoosePeriod(period); };
  for (auto& [index, button] : cmdCummlative)
    button->Click = [this, running = index] { ChooseFigures(running); };
  for (auto& [index, button] : cmdCompare)
    button->Click = [this, comparison = index] { ChooseComparison(comparison); };
  cmbZoom.Click = [this] { Zoom(); };
  HScroll1.Change = [this] { Graph.Left = -Short(HScroll1.Position() * kScrollUnit); };
  VScroll1.Change = [this] { Graph.Top = -Short(VScroll1.Position() * kScrollUnit); };
  cmdPrint(0).Click = [this] { Print(); };
  cmdExit.Click = [this] { gRuntime->Unload(*this); };
}

void frmGraph::OnLoad() {
  Move(gSession->FormLeft(), gSession->FormTop(), gSession->FormWidth(), gSession->FormHeight());
  const BusyPointer pointer;
  cmbZoom.SetListIndex(kHundredPercent);
  gApp->InitForm(*this);
  PlaceControls(false);
  if (GraphType.empty()) GraphType = "M";
  ChooseFigures(CumFigures);
  Graph.chartType = MSChart::k2dBar;
  compareWith_ = kCompareNone;
  if (GraphQryNxt.empty()) cmdCompare(kCompareNext).Enabled = cmdCompare(kCompareBoth).Enabled = false;
  if (GraphQryPrv.empty()) cmdCompare(kComparePrevious).Enabled = cmdCompare(kCompareBoth).Enabled = false;
  // What cannot be read or drawn keeps the form from nothing else.
  Tell("Form_Load", [this] { ReadFirst(); });
  Tell("Form_Load", [this] { ColorSeries(); });
  Tell("UpdateGraph", [this] { UpdateGraph(); });
  ShowChoices();
}

void frmGraph::ReadFirst() {
  ArrayData(GraphQry, 0, LinkOf(FYear));
  if (CompareMode != kCompareMode) return;
  for (auto& [index, button] : cmdCompare) button->Enabled = false;
  compareWith_ = kCompareNext;
  ArrayData(GraphQryNxt, 1, LinkOf(FYear));
  nextLoaded_ = true;
}

void frmGraph::ColorSeries() {
  const auto colorOf = [this](int series) -> MSChartFillColor& {
    return Graph.Plot.SeriesCollection(series).DataPoints(-1).Brush.FillColor;
  };
  if (const std::vector<std::string> parts = text::Split(gColor, ","); parts.size() == 3) {
    const auto part = [&parts](std::size_t at) { return Short(ValInteger(parts[at])); };
    colorOf(1).Set(part(0), part(1), part(2));
  }
  if (ChangeColor == 1 && CompareMode == kCompareMode) {
    colorOf(1).Set(0, 200, 0);
    colorOf(2).Set(200, 0, 0);
  }
}

void frmGraph::Tell(const char* routine, const std::function<void()>& work) {
  try {
    work();
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, routine);
  }
}

CDbLink& frmGraph::LinkOf(const std::shared_ptr<FinYear>& year) const {
  if (!year) throw HostError("The year of this graph is not known");
  return year->Db();
}

void frmGraph::OnActivate() {
  if (!CallingForm && !QuillonForm) gApp->RegisterForm(*this, "Graph", "Graph");
}

void frmGraph::OnUnload() {
  rsGraph_.Close();
  figures_ = {};
  prevLoaded_ = nextLoaded_ = false;
  FYear.reset();
  FYNext.reset();
  FYPrev.reset();
  gApp->UnregisterForm(*this);
}

void frmGraph::ArrayData(const std::string& aQry, int YearAdd, CDbLink& Conn) {
  Tell("ArrayData", [&] {
    const int years = CompareMode == kCompareMode ? 0 : YearAdd;
    const Date from = RMinDate.AddYears(years);
    const int base = BaseOf(YearAdd);
    CountDays(from, RMaxDate.AddYears(years));
    FinYear& year = gSession->Year();
    const GraphCalendar calendar(year.StartMonth(), year.StartDate().Year());
    if (base == GraphFigures::kCurrent) labels_ = calendar;
    ReadRows(aQry, from, base, Conn, calendar);
    figures_.Total(base, dayCount_);
  });
}

void frmGraph::CountDays(Date from, Date to) {
  dayCount_ = Short(Date::Days(from, to) + 1);
  if (dayCount_ <= GraphFigures::kMostDays) return;
  dayCount_ = GraphFigures::kMostDays;
  gStd->MsgBox("Error : period more than 366 days not allowed in graph.", "", "E");
}

void frmGraph::ReadRows(const std::string& query, Date from, int base, CDbLink& link,
                        const GraphCalendar& calendar) {
  rsGraph_.Open(query, link, kCursorKeyset, kReadOnly);
  for (; !rsGraph_.Eof(); rsGraph_.MoveNext()) {
    const Date date = rsGraph_.Field("gdate").ToDate();
    const std::int64_t day = Date::Days(from, date) + 1;
    // The rows are in date order, so none behind it fits.
    if (day > GraphFigures::kMostDays) break;
    figures_.Enter(base, day, date, rsGraph_.Field("gamt").ToAmount(), calendar);
  }
  rsGraph_.Close();
}

void frmGraph::UpdateGraph() {
  Graph.ShowLegend = HasLegend();
  Graph.DataGrid.DeleteRows(1, Graph.DataGrid.RowCount());
  int divisor = 1;
  if (GraphType == "D") divisor = DrawDays();
  if (GraphType == "M") divisor = DrawPeriods(GraphUnit::Month);
  if (GraphType == "Q") divisor = DrawPeriods(GraphUnit::Quarter);
  Graph.Plot.Axis(MSChartPlot::kAxisY).AxisTitle.Text = GraphAxisTitle(AmtTxt, UnitTxt, divisor);
}

int frmGraph::DrawDays() {
  const int divisor = figures_.Divisor(GraphUnit::Day, CumFigures);
  const int days = Short(Date::Days(RMinDate, RMaxDate) + 1);
  Graph.DataGrid.SetSize(days, 1, days, 1);
  for (int day = 1; day <= days; ++day) {
    const Amount amount = figures_.At(GraphUnit::Day, CumFigures, day) * GraphNeg;
    Graph.DataGrid.SetData(day, 1, Amount::OfDouble(amount.ToDouble() / divisor).ToDouble());
  }
  return divisor;
}

int frmGraph::DrawPeriods(GraphUnit unit) {
  const std::vector<GraphSeries> all =
      SeriesOfGraph(unit, compareWith_, CumFigures, RMinDate.Year(), {LTitlePrev, LTitleCurrent, LTitleNext});
  const int divisor = CommonDivisor(figures_, unit, all);
  const int periods = unit == GraphUnit::Month ? GraphCalendar::kMonths : GraphCalendar::kQuarters;
  const auto columns = static_cast<int>(all.size());
  Graph.DataGrid.SetSize(periods, columns, periods, columns);
  for (int column = 1; column <= columns; ++column) {
    const GraphSeries& series = all[static_cast<std::size_t>(column - 1)];
    const int sign = CompareMode == kCompareMode && series.IsNext() ? -1 : GraphNeg;
    Graph.DataGrid.SetColumnLabel(column, 1, series.Title);
    for (int period = 1; period <= periods; ++period) {
      const Amount amount = figures_.At(unit, series.Row, period) * sign;
      Graph.DataGrid.SetData(period, column, amount.ToDouble() / divisor);
    }
  }
  // Beside other years a month stands for several of them.
  const bool shortened = unit == GraphUnit::Month && compareWith_ != kCompareNone;
  for (int period = 1; period <= periods; ++period) {
    const std::string label = PeriodLabel(unit, period);
    Graph.DataGrid.SetRowLabel(period, 1, shortened ? text::Left(label, 3) : label);
  }
  FillTable(unit, divisor);
  return divisor;
}

std::string frmGraph::PeriodLabel(GraphUnit unit, int position) const {
  return unit == GraphUnit::Month ? labels_.MonthLabel(position) : labels_.QuarterLabel(position);
}

void frmGraph::FillTable(GraphUnit unit, int divisor) {
  const bool isMonth = unit == GraphUnit::Month;
  const int periods = Graph.DataGrid.RowCount();
  const int total = periods + 1;
  Grid.Cols = total + 1;
  Grid.Clear();
  const long first = isMonth ? kMonthTitleWidth : Grid.Width / Grid.Cols;
  const long other = isMonth ? (Grid.Width - kMonthTitleWidth) / total : first;
  for (int col = 0; col <= total; ++col) {
    Grid.SetColWidth(col, col == 0 ? first : other);
    Grid.SetColAlignment(col, kAlignCentre);
  }
  for (int period = 1; period <= periods; ++period)
    Grid.SetTextMatrix(0, period, text::Left(PeriodLabel(unit, period), isMonth ? 3 : 7));
  Grid.SetTextMatrix(0, total, "Total");
  for (int series = 1; series <= Graph.DataGrid.ColumnCount(); ++series) FillTableRow(unit, series, divisor);
}

void frmGraph::FillTableRow(GraphUnit unit, int series, int divisor) {
  const bool isMonth = unit == GraphUnit::Month;
  const int periods = Graph.DataGrid.RowCount();
  const std::string title = Graph.DataGrid.ColumnLabel(series);
  Grid.SetTextMatrix(series, 0, isMonth ? ShortYearTitle(title) : title);
  Amount total;
  for (int period = 1; period <= periods; ++period) {
    if (PeriodLabel(unit, period).empty()) continue;
    // A quotient of floating point may lie a hair below the figure that it came from.
    const Amount figure = Amount::OfDouble(Graph.DataGrid.GetData(period, series) * divisor);
    Grid.SetTextMatrix(series, period, std::to_string(figure.Floor()));
    total += figure;
  }
  Grid.SetTextMatrix(series, periods + 1, isMonth ? std::to_string(total.Floor()) : total.ToString());
  const long color = Graph.Plot.SeriesCollection(series).DataPoints(-1).Brush.FillColor.Value();
  gStd->SetRowColors(Grid, series, 0, Grid.Cols - 1, color, kTableText);
}

}  // namespace quillon
