#include "graph/frmGraph.h"

#include <cmath>

#include "host/services/host_services.h"

namespace quillon {

namespace {

constexpr long kScreenBack = 0xDDD5BF;
constexpr long kViewBack = 0xE0E0E0;
constexpr long kHeadingBack = 0xDAF1EE;
constexpr long kPaper = 0xFFFFFF;
constexpr long kChosenBack = 0xEEEDDC;
constexpr long kGap = 100;
constexpr long kPaperWidth = 11500;
constexpr long kPaperBottom = 8000;
constexpr long kPaperEdge = 10;

struct Style {
  int chartType;
  bool isDeep;
};
constexpr Style kStyles[] = {{MSChart::k2dBar, false},
                             {MSChart::k2dLine, false},
                             {MSChart::k2dPie, false},
                             {MSChart::k3dBar, true},
                             {MSChart::k3dLine, true}};
constexpr double kZooms[] = {2, 1.5, 1, 0.75, 0.5};
const char* const kPeriods[] = {"Q", "M", "D"};

/// Fits a scroll bar to what hangs over the viewport, in steps of so many twips; hidden where nothing does.
void FitScrollBar(ScrollBar& bar, long whole, long seen, long unit) {
  bar.Position = 0;
  const bool needed = whole > seen;
  if (needed) {
    const double steps = std::nearbyint(static_cast<double>(whole - seen) / static_cast<double>(unit));
    if (steps > INT16_MAX) throw OverflowError();
    bar.Max = static_cast<int>(steps);
    bar.LargeChange = 10;
  }
  bar.Visible = needed;
}

/// The button whose choice is in force stands out.
void ShowChosen(ControlArray<CommandButton>& buttons, int chosen) {
  for (auto& [index, button] : buttons)
    button->BackColor = index == chosen ? kChosenBack : Control::kDefaultColor;
}

}  // namespace

void frmGraph::ChooseStyle(int style) {
  const Style& wanted = kStyles[static_cast<std::size_t>(style)];
  style_ = style;
  Graph.chartType = wanted.chartType;
  Graph.Plot.DataSeriesInRow = Graph.IsPie();
  Graph.Plot.SeriesCollection(1).SeriesMarker.Show = false;
  const quillon::Font font = wanted.isDeep ? lblTitle.Font() : cmdPeriod(0).Font();
  for (const int axis : {MSChartPlot::kAxisX, MSChartPlot::kAxisY, MSChartPlot::kAxisY2})
    Graph.Plot.Axis(axis).Labels(1).Font = font;
  Graph.Refresh();
  Graph.ShowLegend = HasLegend();
  ShowChoices();
}

void frmGraph::ChoosePeriod(int period) {
  GraphType = kPeriods[period];
  UpdateGraph();
  ShowChoices();
}

void frmGraph::ChooseFigures(int running) {
  if (running != CumFigures) {
    CumFigures = static_cast<std::int16_t>(running);
    UpdateGraph();
  }
  cmdCummlative(0).Enabled = CumFigures != 0;
  cmdCummlative(1).Enabled = CumFigures == 0;
}

void frmGraph::ChooseComparison(int comparison) {
  if (comparison == compareWith_) return;
  if ((comparison == kComparePrevious || comparison == kCompareBoth) && !prevLoaded_) {
    ArrayData(GraphQryPrv, -1, LinkOf(FYPrev));
    prevLoaded_ = true;
  }
  if ((comparison == kCompareNext || comparison == kCompareBoth) && !nextLoaded_) {
    ArrayData(GraphQryNxt, 1, LinkOf(FYNext));
    nextLoaded_ = true;
  }
  compareWith_ = comparison;
  UpdateGraph();
  ShowChoices();
}

void frmGraph::ShowChoices() {
  ShowChosen(cmdGraphStyle, style_);
  for (int period = 0; period < 3; ++period) {
    if (GraphType == kPeriods[period]) ShowChosen(cmdPeriod, period);
  }
  ShowChosen(cmdCompare, cmdCompare(kCompareNone).Enabled ? compareWith_ : kNoIndex);
}

void frmGraph::Zoom() {
  if (cmbZoom.ListIndex() < 0) return;
  const double zoom = kZooms[static_cast<std::size_t>(cmbZoom.ListIndex())];
  const auto zoomed = [zoom](long length) { return std::lrint(static_cast<double>(length) * zoom); };
  Graph.Move(0, 0, zoomed(Picture2.Width), zoomed(Picture2.Height));
  FitScrollBar(HScroll1, Graph.Width, Picture2.Width, kScrollUnit);
  FitScrollBar(VScroll1, Graph.Height, Picture2.Height, kScrollUnit);
}

void frmGraph::PlaceControls(bool prnMode) {
  if (prnMode) {
    PlaceForPrinter();
  } else {
    PlaceForScreen();
  }
}

void frmGraph::ShowScreenParts(bool shown) {
  Picture1.Visible = shown;
  Picture3.Visible = shown;
  lblTitle.Visible = shown;
  QuillonStdButtons1.Visible = shown;
}

void frmGraph::PlaceForScreen() {
  BackColor = kScreenBack;
  Picture2.BackColor = kViewBack;
  for (auto& [index, label] : lblTitle1) label->BackColor = kHeadingBack;
  lblTitle1(0).Caption = "";
  ShowScreenParts(true);
  lblTitle1(0).Visible = true;
  lblTitle.Move(0, 0, ScaleWidth(), lblTitle.Height);
  QuillonStdButtons1.Left = ScaleWidth() - QuillonStdButtons1.Width;
  Picture1.Left = 0;
  Picture1.Top = lblTitle.Height;
  Picture1.Height = ScaleHeight() - Picture1.Top - Picture3.Height;
  Picture3.Move(0, ScaleHeight() - Picture3.Height, ScaleWidth(), Picture3.Height);
  Picture2.BorderStyle = 1;
  Picture2.Left = Picture1.Width + kGap;
  Picture2.Top = lblTitle.Height + lblTitle1(0).Height + lblTitle1(1).Height + kGap;
  Picture2.Width = ScaleWidth() - Picture1.Width - VScroll1.Width - kGap;
  Picture2.Height = ScaleHeight() - Picture2.Top - Picture3.Height - HScroll1.Height;
  HScroll1.Move(Picture2.Left, Picture2.Top + Picture2.Height, Picture2.Width, HScroll1.Height);
  VScroll1.Move(Picture2.Left + Picture2.Width, Picture2.Top, VScroll1.Width, Picture2.Height);
  Zoom();
  PlaceHeadings();
  Grid.Move(0, 0, Picture3.Width, Picture3.Height);
}

void frmGraph::PlaceHeadings() {
  const long width = ScaleWidth() - Picture1.Width;
  lblTitle1(0).Move(Picture1.Width, lblTitle.Height, width, lblTitle1(0).Height);
  lblTitle1(1).Move(Picture1.Width, lblTitle.Height + lblTitle1(0).Height, width / 2, lblTitle1(1).Height);
  lblTitle1(2).Move(lblTitle1(1).Left + lblTitle1(1).Width, lblTitle1(1).Top, lblTitle1(1).Width,
                    lblTitle1(2).Height);
}

void frmGraph::PlaceForPrinter() {
  ShowScreenParts(false);
  HScroll1.Visible = false;
  VScroll1.Visible = false;
  BackColor = Picture2.BackColor = kPaper;
  for (auto& [index, label] : lblTitle1) label->BackColor = kPaper;
  Picture2.BorderStyle = 0;
  const long top = lblTitle1(0).Height + lblTitle1(1).Height;
  Picture2.Move(0, top, kPaperWidth, kPaperBottom - top);
  lblTitle1(0).Caption = gSession->FirmName();
  lblTitle1(0).Move(0, 0, Picture2.Width, lblTitle1(0).Height);
  lblTitle1(1).Move(0, lblTitle1(0).Height, Picture2.Width / 2, lblTitle1(1).Height);
  lblTitle1(2).Move(lblTitle1(1).Left + lblTitle1(1).Width, lblTitle1(1).Top, lblTitle1(1).Width,
                    lblTitle1(2).Height);
  Graph.Move(kPaperEdge, kPaperEdge, Picture2.Width - 2 * kPaperEdge, Picture2.Height - 2 * kPaperEdge);
  gRuntime->DoEvents();
}

void frmGraph::Print() {
  const std::shared_ptr<PrintSetup> setup = gReports->Print("Print");
  setup->Orientation = IPrinter::kLandscape;
  setup->ColorMode = IPrinter::kMonochrome;
  setup->OffersSight = false;
  setup->Show(1);
  if (setup->Cancelled) return;
  setup->TakePrinter();
  try {
    PlaceControls(true);
    gRuntime->DoEvents();
    gRuntime->Printer().PaperSize = IPrinter::kA4;
    gRuntime->Printer().Orientation = IPrinter::kLandscape;
    gRuntime->PrintForm(*this);
    gRuntime->DoEvents();
  } catch (...) {
    PlaceControls(false);
    throw;
  }
  PlaceControls(false);
}

}  // namespace quillon
