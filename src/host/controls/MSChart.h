#pragma once

#include <string>

#include "host/controls/Control.h"
#include "host/controls/MSChartDataGrid.h"
#include "host/controls/MSChartPlot.h"

namespace quillon {

/// A chart: a grid of figures and how they are drawn.
class MSChart : public Control {
  MSChartChanged changed_{[this] { ContentChanged(); }};

 public:
  static constexpr int k3dBar = 0;
  static constexpr int k2dBar = 1;
  static constexpr int k3dLine = 2;
  static constexpr int k2dLine = 3;
  static constexpr int k3dArea = 4;
  static constexpr int k2dArea = 5;
  static constexpr int k3dStep = 6;
  static constexpr int k2dStep = 7;
  static constexpr int k2dPie = 14;

  using Control::Control;

  const char* Kind() const override { return "MSChart"; }

  Property<int> chartType{*this, "chartType", k2dBar};
  Property<bool> ShowLegend{*this, "ShowLegend"};
  TextProperty TitleText{*this, "TitleText"};

  /// A line under the chart.
  TextProperty FootnoteText{*this, "FootnoteText"};

  MSChartDataGrid DataGrid{changed_};
  mutable MSChartPlot Plot{changed_};

  /// Series and what they run along, whichever way the figures lie; both count from 1.
  int SeriesCount() const;
  int PeriodCount() const;
  double Figure(int series, int period) const;
  bool IsMissing(int series, int period) const;

  /// One of several series without a label goes by its number.
  std::string SeriesLabel(int series) const;
  std::string PeriodLabel(int period) const;
  bool IsPie() const { return chartType == k2dPie; }

  /// The types with depth.
  bool IsDeep() const { return chartType < k2dPie && chartType % 2 == 0; }

  void Refresh() { ContentChanged(); }

  State Describe() const override;
};

}  // namespace quillon
