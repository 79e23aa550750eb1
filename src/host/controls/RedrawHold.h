#pragma once

#include "host/controls/GridModel.h"

namespace quillon {

/// Holds a grid's redraw back for the length of a block; the grid is drawn again however the block ends.
class RedrawHold {
 public:
  explicit RedrawHold(GridModel& grid) : grid_(grid) { grid_.Redraw = false; }
  RedrawHold(const RedrawHold&) = delete;
  RedrawHold& operator=(const RedrawHold&) = delete;
  ~RedrawHold() { grid_.Redraw = true; }

 private:
  GridModel& grid_;
};

}  // namespace quillon
