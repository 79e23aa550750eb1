#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/controls/MSChartValue.h"

namespace quillon {

/// The figures of a chart with the labels of their rows and columns. Rows, columns and labels count from 1; a
/// number outside throws SubscriptError.
class MSChartDataGrid {
 public:
  explicit MSChartDataGrid(const MSChartChanged& changed) : changed_(changed) {}
  MSChartDataGrid(const MSChartDataGrid&) = delete;
  MSChartDataGrid& operator=(const MSChartDataGrid&) = delete;

  int RowCount() const { return static_cast<int>(rows_.size()); }
  int ColumnCount() const { return columns_; }

  /// How many labels a row and a column have, one above the other, then the rows and columns of figures. The
  /// figures start at 0, the labels empty.
  void SetSize(int rowLabelCount, int columnLabelCount, int rowCount, int columnCount);

  /// Rows from `row` on; what lies behind the last row is passed over.
  void DeleteRows(int row, int count);

  double GetData(int row, int column) const;

  /// A missing figure is no zero: nothing is drawn for it.
  void SetData(int row, int column, double value, bool missing = false);
  bool IsMissing(int row, int column) const;

  std::string RowLabel(int row, int label = 1) const;
  void SetRowLabel(int row, int label, const std::string& text);
  std::string ColumnLabel(int column, int label = 1) const;
  void SetColumnLabel(int column, int label, const std::string& text);

  /// All labels of a row or a column, the outermost first, joined by blanks.
  std::string CompositeRowLabel(int row) const;
  std::string CompositeColumnLabel(int column) const;

 private:
  struct Figure {
    double value = 0;
    bool missing = false;
  };
  using Labels = std::map<int, std::string>;

  const Figure& At(int row, int column) const;

  const MSChartChanged& changed_;
  int columns_ = 0;
  int rowLabels_ = 1;
  int columnLabels_ = 1;
  std::vector<std::vector<Figure>> rows_;
  std::vector<Labels> rowTexts_;
  std::vector<Labels> columnTexts_;
};

}  // namespace quillon
