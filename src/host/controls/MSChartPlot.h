#pragma once

#include <map>
#include <memory>
#include <string>

#include "host/controls/MSChartValue.h"
#include "host/values/Font.h"

namespace quillon {

/// The colour of a series. Red, green and blue are 0 to 255, an amount outside is brought inside.
class MSChartFillColor {
 public:
  MSChartFillColor(const MSChartChanged& changed, int series);
  MSChartFillColor(const MSChartFillColor&) = delete;
  MSChartFillColor& operator=(const MSChartFillColor&) = delete;

  void Set(int red, int green, int blue);
  int Red() const { return static_cast<int>(value_ & 0xFF); }
  int Green() const { return static_cast<int>(value_ >> 8 & 0xFF); }
  int Blue() const { return static_cast<int>(value_ >> 16 & 0xFF); }

  /// 0xBBGGRR; the chart's own until it was set.
  long Value() const { return value_; }

 private:
  const MSChartChanged& changed_;
  long value_;
};

/// One series of a plot.
class MSChartSeries {
 public:
  struct MarkerOf {
    MSChartValue<bool> Show;  ///< a mark on each figure of a line
  };
  struct BrushOf {
    MSChartFillColor FillColor;
  };
  struct DataPoint {
    BrushOf Brush;
  };

  MSChartSeries(const MSChartChanged& changed, int series);

  MarkerOf SeriesMarker;

  /// The look of all points of the series, for -1; single points have none of their own.
  DataPoint& DataPoints(int point);

 private:
  DataPoint all_;
};

/// An axis: its title and the look of its labels.
class MSChartAxis {
 public:
  struct TitleOf {
    MSChartValue<std::string> Text;
  };
  struct LabelOf {
    MSChartValue<quillon::Font> Font;
  };

  explicit MSChartAxis(const MSChartChanged& changed) : AxisTitle{{changed, ""}}, label_{{changed, {}}} {}

  TitleOf AxisTitle;

  /// The first row of labels; there is no second.
  LabelOf& Labels(int label);

 private:
  LabelOf label_;
};

/// How the figures of a chart are drawn. What was set for a series stays when the figures change.
class MSChartPlot {
 public:
  static constexpr int kAxisX = 0;
  static constexpr int kAxisY = 1;
  static constexpr int kAxisY2 = 2;

  explicit MSChartPlot(const MSChartChanged& changed);
  MSChartPlot(const MSChartPlot&) = delete;
  MSChartPlot& operator=(const MSChartPlot&) = delete;

  /// Each row of figures is a series, in place of each column.
  MSChartValue<bool> DataSeriesInRow;

  /// Counted from 1; throws SubscriptError below it. A series may be dressed before it has figures.
  MSChartSeries& SeriesCollection(int series);

  /// `axis` is 0 for the periods, 1 for the values, 2 for the values at the right; `index` is 1.
  MSChartAxis& Axis(int axis, int index = 1);

 private:
  const MSChartChanged& changed_;
  std::map<int, std::unique_ptr<MSChartSeries>> series_;
  std::map<int, std::unique_ptr<MSChartAxis>> axes_;
};

}  // namespace quillon
