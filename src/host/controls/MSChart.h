#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/controls/Control.h"

namespace quillon {

/// A chart: a grid of figures, one column for each series, and how they are drawn. Rows and series count
/// from 1.
class MSChart : public Control {
 public:
  static constexpr int k3dBar = 0;
  static constexpr int k2dBar = 1;
  static constexpr int k3dLine = 2;
  static constexpr int k2dLine = 3;
  static constexpr int k2dPie = 14;

  using Control::Control;

  const char* Kind() const override { return "MSChart"; }

  Property<int> ChartType{*this, "chartType", k2dBar};
  Property<bool> ShowLegend{*this, "ShowLegend"};
  Property<bool> DataSeriesInRow{*this, "DataSeriesInRow"};
  TextProperty ValueAxisTitle{*this, "AxisTitle"};

  int RowCount() const { return static_cast<int>(rows_.size()); }
  int ColumnCount() const { return static_cast<int>(series_.size()); }

  /// Keeps the colours of the series; the figures start at 0 and the labels empty.
  void SetSize(int rows, int columns);
  void DeleteRows();
  double GetData(int row, int column) const;
  void SetData(int row, int column, double value);
  std::string RowLabel(int row) const;
  void SetRowLabel(int row, const std::string& label);
  std::string ColumnLabel(int column) const;
  void SetColumnLabel(int column, const std::string& label);

  /// 0xBBGGRR; a series that was given none has the chart's own.
  long SeriesColor(int column) const;
  void SetSeriesColor(int column, long color);

  /// Fonts of the labels of axes 0 to 2.
  const quillon::Font& AxisFont(int axis) const { return axisFonts_.at(axis); }
  void SetAxisFont(int axis, const quillon::Font& font);
  void SetMarker(int column, bool shown);
  void Refresh() { ContentChanged(); }

  State Describe() const override;

 private:
  struct RowData {
    std::string label;
    std::vector<double> values;
  };
  struct Series {
    std::string label;
    bool marker = true;
  };

  const RowData& RowAt(int row) const;
  const Series& SeriesAt(int column) const;

  std::vector<RowData> rows_;
  std::vector<Series> series_;
  std::map<int, long> colors_;
  std::map<int, quillon::Font> axisFonts_{{0, {}}, {1, {}}, {2, {}}};
};

}  // namespace quillon
