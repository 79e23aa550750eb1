#include "host/controls/GridFind.h"

#include "host/controls/GridModel.h"
#include "host/forms/Runtime.h"

namespace quillon {

GridFind::GridFind(GridModel& grid) : Box(grid, "FindBox", Control::kNoIndex, false), grid_(grid) {
  Box.Visible = false;
  Box.Change = [this] { Typed(); };
}

GridFind::Place GridFind::Cursor() const { return {grid_.Row, grid_.Col}; }

void GridFind::Open() {
  grid_.RequireReachable();
  origin_ = Cursor();
  open_ = true;
  note_.clear();
  Box.Visible = true;
  Box.SelectAll();
  grid_.ContentChanged();
}

void GridFind::Close() {
  if (!open_) return;
  open_ = false;
  Box.Visible = false;
  grid_.ContentChanged();
}

void GridFind::Typed() {
  pattern_ = FindPattern(Box.Text);
  found_ = false;
  note_.clear();
  if (!pattern_.IsEmpty()) Search(origin_, 1, true);
  grid_.ContentChanged();
}

void GridFind::Again(bool back) {
  if (pattern_.IsEmpty()) {
    gRuntime->Say("Nothing was looked for yet. Ctrl+F finds.");
    return;
  }
  Search(Cursor(), back ? -1 : 1, false);
  origin_ = Cursor();
  if (!open_ && !note_.empty()) gRuntime->Say("\"" + Box.Text + "\": " + note_ + ".");
  grid_.ContentChanged();
}

bool GridFind::HandleKey(const KeyEvent& key) {
  const bool ctrl = (key.Shift & ~keys::kShift) == keys::kCtrl;
  const bool shift = (key.Shift & keys::kShift) != 0;
  if (key.KeyCode == keys::kEnter || (ctrl && key.KeyCode == 'G')) {
    Again(shift);
    return true;
  }
  if (ctrl && key.KeyCode == 'F') {
    Box.SelectAll();
    return true;
  }
  switch (key.KeyCode) {
    case keys::kUp:
    case keys::kDown:
    case keys::kPageUp:
    case keys::kPageDown:
      // From what was found one goes on in the grid.
      Close();
      return grid_.HandleKey(key);
    default:
      return Box.HandleKey(key);
  }
}

/// The first shown cell of the row that has it beyond a column, to the right (1) or to the left (-1); -1 for
/// none.
int GridFind::FindIn(int row, int beyond, int step) const {
  for (int col = beyond + step; col >= 0 && col < grid_.Cols; col += step) {
    if (grid_.IsColShown(col) && pattern_.Matches(grid_.Cell(row, col))) return col;
  }
  return -1;
}

void GridFind::Search(Place from, int step, bool withStart) {
  found_ = false;
  note_ = "nothing found";
  const int outside = step > 0 ? -1 : grid_.Cols();
  const bool stands = from.row >= grid_.FixedRows && from.row < grid_.Rows && grid_.IsRowShown(from.row);
  const int start = stands ? from.row : grid_.OuterRow(step);
  if (start < 0) return;
  int row = start;
  int col = FindIn(row, !stands ? outside : withStart ? from.col - step : from.col, step);
  bool round = false;
  while (col < 0 && !(round && row == start)) {
    row = grid_.RowBeside(row, step);
    if (row < 0) {
      round = true;
      row = grid_.OuterRow(step);
    }
    col = FindIn(row, outside, step);
  }
  if (col < 0) return;
  found_ = true;
  note_ = !round ? "" : step > 0 ? "went on from the top" : "went on from the end";
  grid_.KeyMoveTo(row, col);
}

}  // namespace quillon
