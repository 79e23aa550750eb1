#pragma once

#include <vector>

#include "desk/print/Paper.h"
#include "desk/print/ReportSettings.h"
#include "desk/print/ReportTable.h"

namespace quillon {

/// The sheet, font and columns of a report. Twips.
struct PagePlan {
  int Orientation = 1;
  PaperExtent Sheet;
  double Left = 0;
  double Right = 0;
  double Top = 0;
  double Bottom = 0;  ///< where rows end
  Font Body;
  Font Bold;
  double LineHeight = 0;
  double CellMargin = 0;  ///< at the left and right of a cell
  double RowMargin = 0;   ///< above and below the text of a row
  std::vector<double> ColumnLeft;
  std::vector<double> ColumnWidth;
  std::vector<double> TextWidth;  ///< what of the column's width a text may take
  bool IsLabels = false;

  /// Upright when the columns fit with a readable font, else landscape; a font below that only when nothing
  /// else helps, because figures are never cut.
  static PagePlan For(const ReportTable& table, const ReportSettings& settings);

 private:
  bool TryFit(const ReportTable& table, const std::vector<double>& leastPerPoint, double size, bool force);
};

}  // namespace quillon
