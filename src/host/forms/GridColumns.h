#pragma once

#include <initializer_list>

#include "host/controls/GridModel.h"

namespace quillon {

/// A column of a grid as a screen states it.
struct GridColumn {
  int Column;
  const char* Title;
  double Width;
  int Alignment = -1;  ///< kAlignLeft and the like; -1 leaves the column's own
};

/// Widths in characters, which are as wide as the "9" of the grid's font.
void SetColumnsInChars(GridModel& grid, std::initializer_list<GridColumn> columns);

/// Widths in twips, or up to 1 in shares of the grid's width.
void SetColumnsInTwips(GridModel& grid, std::initializer_list<GridColumn> columns);

}  // namespace quillon
