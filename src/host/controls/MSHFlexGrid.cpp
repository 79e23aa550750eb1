#include "host/controls/MSHFlexGrid.h"

#include <algorithm>

namespace quillon {

void MSHFlexGrid::Clear() {
  GridModel::Clear();
  for (int row = 0; row < std::min(FixedRows(), Rows()); ++row) {
    for (int col = 0; col < Cols; ++col) SetTextMatrix(row, col, "");
  }
}

}  // namespace quillon
