#include <QHelpEvent>
#include <QToolTip>
#include <set>

#include "desk/qt/adapters/ChartAxis.h"
#include "desk/qt/adapters/Scale.h"
#include "tests/qt/FormTest.h"
#include "tests/qt/frmEveryKind.h"

namespace quillon {
namespace {

constexpr QRgb kBlue = 0xFF0000FF;
constexpr QRgb kGreen = 0xFF00FF00;

class ChartTest : public FormTest {
 protected:
  ChartTest() : form_(std::make_shared<frmEveryKind>()), chart_(form_->Chart) {
    runtime_.Show(form_);
    chart_.Move(0, 0, 12000, 7500);
    SetColor(1, kBlue);
    SetColor(2, kGreen);
  }

  void SetColor(int series, QRgb color) {
    chart_.Plot.SeriesCollection(series).DataPoints(-1).Brush.FillColor.Set(qRed(color), qGreen(color),
                                                                            qBlue(color));
  }
  void Fill(const std::vector<std::vector<double>>& rows) {
    const auto columns = static_cast<int>(rows.front().size());
    const auto count = static_cast<int>(rows.size());
    chart_.DataGrid.SetSize(count, columns, count, columns);
    for (int row = 1; row <= count; ++row) {
      for (int column = 1; column <= columns; ++column)
        chart_.DataGrid.SetData(
            row, column, rows[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)]);
    }
  }
  QImage Picture() {
    return WidgetOf<QWidget>(chart_).grab().toImage().convertToFormat(QImage::Format_ARGB32);
  }
  /// In the whole picture, or in a part of it.
  int Count(const std::function<bool(QRgb)>& meant, QRect part = {}) {
    const QImage picture = Picture();
    if (part.isNull()) part = picture.rect();
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
      for (int x = part.left(); x <= part.right(); ++x) count += meant(picture.pixel(x, y)) ? 1 : 0;
    }
    return count;
  }
  int Dots(QRgb color) {
    return Count([color](QRgb dot) { return dot == color; });
  }
  /// Lit and shaded faces too.
  int BluishDots() {
    return Count([](QRgb dot) { return qBlue(dot) > std::max(qRed(dot), qGreen(dot)) + 60; });
  }
  /// The words that come when the pointer rests on the first dot of that colour, counted from the left.
  std::string Pointed(QRgb color) {
    const QImage picture = Picture();
    for (int x = 0; x < picture.width(); ++x) {
      for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixel(x, y) != color) continue;
        QWidget& widget = WidgetOf<QWidget>(chart_);
        QHelpEvent rests(QEvent::ToolTip, {x, y}, widget.mapToGlobal(QPoint(x, y)));
        QApplication::sendEvent(&widget, &rests);
        return QToolTip::text().toStdString();
      }
    }
    return "no such dot";
  }

  std::shared_ptr<frmEveryKind> form_;
  MSChart& chart_;
};

TEST_F(ChartTest, BarsAreAsHighAsTheirFiguresOnBothSidesOfZeroAndTellThem) {
  Fill({{0}, {0}});
  chart_.ShowLegend = true;
  EXPECT_EQ(Dots(kBlue), 0) << "figures of 0 have no bars, a series without a name no legend";
  chart_.ShowLegend = false;
  Fill({{300000}, {-100000}, {-100000}});
  const int both = Dots(kBlue);
  chart_.DataGrid.SetRowLabel(1, 1, "Apr 2024");
  chart_.DataGrid.SetColumnLabel(1, 1, "2024-2025");
  EXPECT_EQ(Pointed(kBlue), "Apr 2024: 2024-2025: 3,00,000");
  chart_.DataGrid.SetData(2, 1, 0, true);
  EXPECT_NEAR(static_cast<double>(Dots(kBlue)) / both, 0.8, 0.02);
  chart_.DataGrid.DeleteRows(1, chart_.DataGrid.RowCount());
  EXPECT_EQ(Dots(kBlue), 0);
  EXPECT_THROW(chart_.DataGrid.SetData(367, 1, 5), SubscriptError);
}

TEST_F(ChartTest, TheAxisGoesInRoundStepsGroupedTheIndianWay) {
  struct Case {
    double least, most, step;
    const char* top;
  };
  for (const Case& each :
       {Case{0, 4811, 1000, "5,000"}, Case{-1.2e7, 4e6, 2.5e6, "50,00,000"}, Case{0, 0.9, 0.2, "1.0"},
        Case{0, 12.4, 2.5, "12.5"}, Case{0, 0, 0.2, "1.0"}, Case{-50, -10, 10, "0"}}) {
    const ChartAxis axis = ChartAxis::For(each.least, each.most, 5 + (each.least < -100 ? 2 : 0));
    EXPECT_DOUBLE_EQ(axis.Step, each.step) << each.most;
    EXPECT_EQ(axis.Label(axis.Steps()).toStdString(), each.top);
    EXPECT_LE(axis.Least, each.least);
    EXPECT_GE(axis.Most, each.most);
  }
}

TEST_F(ChartTest, ValuesStandOnBothSidesAndAFootnoteBelow) {
  Fill({{300000}, {100000}});
  const auto inked = [this](const QRect& part) {
    return Count([](QRgb dot) { return qGray(dot) < 160; }, part);
  };
  const QRect all = Picture().rect();
  const QRect right(all.right() - 60, all.top(), 60, all.height() - 60);
  const int plain = inked(right);
  EXPECT_GT(plain, 200);
  Font large = chart_.Plot.Axis(MSChartPlot::kAxisY2).Labels(1).Font();
  large.Size = 14;
  chart_.Plot.Axis(MSChartPlot::kAxisY2).Labels(1).Font = large;
  EXPECT_NE(inked(right), plain);
  const QRect foot(all.left(), all.bottom() - 28, all.width(), 18);
  EXPECT_LT(inked(foot), inked(right));
  const int without = inked(foot);
  chart_.FootnoteText = "Figures in thousands of rupees";
  EXPECT_NE(inked(foot), without);
}

TEST_F(ChartTest, ThreeHundredAndSixtySixBarsStandApartAndAreAlike) {
  Fill(std::vector<std::vector<double>>(366, {5}));
  for (const auto& [percent, type] : {std::pair(100, MSChart::k2dBar),
                                      {100, MSChart::k3dBar},
                                      {90, MSChart::k2dBar},
                                      {150, MSChart::k2dBar}}) {
    Scale::SetDrawing(percent);
    chart_.Width = 15000 + percent;
    chart_.chartType = type;
    const QImage picture = Picture();
    const int y = picture.height() / 2;
    std::vector<int> widths;
    for (int x = 1; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != kBlue) continue;
      if (picture.pixel(x - 1, y) != kBlue) widths.push_back(0);
      ++widths.back();
    }
    EXPECT_EQ(widths.size(), 366u) << percent << " % of type " << type;
    const auto [least, most] = std::minmax_element(widths.begin(), widths.end());
    EXPECT_LE(*most - *least, 1) << percent << " % of type " << type;
  }
  Scale::SetDrawing(100);
}

TEST_F(ChartTest, SeriesOfOneColourAreToldApartByTheirPatterns) {
  constexpr int kMonths = 12;
  chart_.Width = 18000;
  Fill({std::vector<double>(kMonths, 10)});
  std::set<int> plain;
  for (int shown = 1; shown <= kMonths; ++shown) {
    for (int series = 1; series <= kMonths; ++series) SetColor(series, series == shown ? kBlue : kGreen);
    plain.insert(Dots(kBlue));
  }
  EXPECT_EQ(plain.size(), 12u) << "each pattern covers a share of its own";
  chart_.chartType = MSChart::k3dLine;
  Fill({{10, 30, 50}, {20, 40, 60}});
  const auto blue = [this](int series) {
    for (int each = 1; each <= 3; ++each) SetColor(each, each == series ? kBlue : kGreen);
    return Count([](QRgb dot) { return qBlue(dot) > std::max(qRed(dot), qGreen(dot)) + 150; });
  };
  EXPECT_LT(blue(3), 0.9 * blue(1)) << "a ribbon has its pattern too";
}

TEST_F(ChartTest, APieHasASliceForEachPeriodAndALegendOfThem) {
  Fill({{30}, {10}});
  chart_.chartType = MSChart::k2dPie;
  chart_.Plot.DataSeriesInRow = true;
  SetColor(2, kBlue);
  SetColor(1, kGreen);
  chart_.DataGrid.SetRowLabel(1, 1, "Apr-Jun");
  EXPECT_EQ(Pointed(kGreen), "Apr-Jun: 30");
  EXPECT_EQ(Pointed(kBlue), "2: 10") << "without a label it goes by its number";
  const int slice = Dots(kGreen);
  chart_.ShowLegend = true;
  EXPECT_NE(Dots(kGreen), slice);
  Fill({{0}, {0}});
  chart_.ShowLegend = false;
  EXPECT_EQ(Dots(kGreen), 0);
}

TEST_F(ChartTest, EveryTypeDrawsOneFigureManyAndNone) {
  for (int type = MSChart::k3dBar; type <= MSChart::k2dStep; ++type) {
    chart_.chartType = type;
    chart_.Plot.SeriesCollection(1).SeriesMarker.Show = false;
    Fill({{-5}});
    EXPECT_GT(BluishDots(), 10) << type;
    Fill({{3, 4}, {7, -2}, {0, 0}, {1, 9}});
    chart_.DataGrid.SetData(3, 1, 0, true);
    EXPECT_GT(BluishDots(), 10) << type;
    chart_.DataGrid.SetSize(0, 0, 0, 0);
    EXPECT_EQ(BluishDots(), 0) << type;
  }
}

}  // namespace
}  // namespace quillon
