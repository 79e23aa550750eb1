#include "host/controls/GridModel.h"

#include <algorithm>
#include <numeric>

#include "host/controls/ColumnRoom.h"
#include "host/forms/Form.h"

namespace quillon {

namespace {

constexpr long kScrollBar = 240;

void RequireSeen(const GridModel& grid, int col) {
  if (!grid.IsColVisible(col)) throw Refused(grid.Name() + " column " + std::to_string(col) + " is hidden");
}

}  // namespace

int GridModel::VisibleRowFrom(int row, int step) const {
  for (; row >= FixedRows && row < Rows; row += step) {
    if (IsRowVisible(row)) return row;
  }
  return -1;
}

int GridModel::ColBeside(int col, int direction) const {
  for (int next = col + direction; next >= 0 && next < Cols; next += direction) {
    if (IsColShown(next)) return next;
  }
  return col;
}

bool GridModel::IsColShown(int col) const {
  const auto place = static_cast<std::size_t>(col);
  return IsColVisible(col) && (place >= sight_.aside.size() || !sight_.aside[place]);
}

std::vector<long> GridModel::SharedWidths(long width) const {
  std::vector<ColumnRoom::Column> columns;
  columns.reserve(static_cast<std::size_t>(Cols()));
  for (int col = 0; col < Cols; ++col) {
    columns.push_back({std::max(ColWidth(col), 0L), ColAlignment(col) == kAlignLeft, 0, 0});
  }
  return ColumnRoom::Share(columns, width);
}

bool GridModel::IsTitleShown(int row) const {
  if (!IsRowVisible(row)) return false;
  for (int col = 0; col < Cols; ++col) {
    if (IsColVisible(col) && !Cell(row, col).empty()) return true;
  }
  return false;
}

long GridModel::BodyTop() const {
  long top = Title().empty() ? 0 : kTitleLine;
  for (int row = 0; row < std::min(FixedRows(), Rows()); ++row) {
    if (IsTitleShown(row)) top += RowHeight(row);
  }
  return top;
}

GridModel::Sight GridModel::OwnSight() const {
  Sight sight{sight_.left, sight_.top, Width, std::max(Height - BodyTop() - FooterHeight(), 0L), {}, {}};
  long whole = 0;
  for (int row = FixedRows; row < Rows && whole <= sight.height; ++row) whole += RowHeight(row);
  if (whole > sight.height) sight.width = std::max(sight.width - kScrollBar, 0L);
  return sight;
}

GridModel::Place GridModel::CellPlace(int row, int col) const {
  RequireRow(row);
  RequireCol(col);
  Sight sight = sight_.width > 0 ? sight_ : OwnSight();
  const auto cols = static_cast<std::size_t>(Cols());
  const std::vector<long> widths = sight.widths.size() == cols ? sight.widths : SharedWidths(sight.width);
  Place place{0, 0, widths[static_cast<std::size_t>(col)], RowHeight(row)};
  place.left = std::accumulate(widths.begin(), widths.begin() + col, 0L);
  if (HasView()) {
    for (int i = OuterRow(1); i >= 0 && i != row; i = RowBeside(i, 1)) place.top += RowHeight(i);
  } else {
    for (int i = FixedRows; i < row; ++i) place.top += RowHeight(i);
  }
  if (row == Row && col == Col) {
    sight.top = std::min(std::max(sight.top, place.top + place.height - sight.height), place.top);
    if (col >= FixedCols) {
      sight.left = std::min(std::max(sight.left, place.left + place.width - sight.width), place.left);
    }
    sight_.left = sight.left;
    sight_.top = sight.top;
  }
  if (col >= FixedCols) place.left -= sight.left;
  place.top += BodyTop() - sight.top;
  if (place.width <= 0 || place.height <= 0) place.width = place.height = 0;
  return place;
}

int GridModel::ScreenfulFrom(int row, int direction) const {
  long room = sight_.height > 0 ? sight_.height : OwnSight().height;
  int reached = row;
  for (int next = RowBeside(row, direction); next >= 0; next = RowBeside(next, direction)) {
    room -= RowHeight(next);
    if (room < 0 && reached != row) break;
    reached = next;
  }
  return reached;
}

/// False for a key that moves nothing.
bool GridModel::MoveByKey(int keyCode, CellAt& to) const {
  int row = to.row;
  switch (keyCode) {
    case keys::kUp:
      row = RowBeside(row, -1);
      break;
    case keys::kDown:
      row = RowBeside(row, 1);
      break;
    case keys::kPageUp:
      row = ScreenfulFrom(row, -1);
      break;
    case keys::kPageDown:
      row = ScreenfulFrom(row, 1);
      break;
    case keys::kLeft:
      to.col = ColBeside(to.col, -1);
      break;
    case keys::kRight:
      to.col = ColBeside(to.col, 1);
      break;
    case keys::kHome:
      row = OuterRow(1);
      break;
    case keys::kEnd:
      row = OuterRow(-1);
      break;
    default:
      return false;
  }
  if (row >= 0) to.row = row;
  return true;
}

TextBox* GridModel::TypedBox() {
  if (Finder.IsOpen()) return &Finder.Box;
  return Look.IsTyped() ? &Look.Box : nullptr;
}

bool GridModel::TakeEscape() {
  if (Finder.IsOpen()) {
    Finder.Close();
  } else if (Look.IsFilterOpen()) {
    Look.CloseFilter();
  } else {
    return Control::TakeEscape();
  }
  return true;
}

void GridModel::LeaveFocus() {
  Finder.Close();
  Look.EndTyping();
  Control::LeaveFocus();
}

void GridModel::OfferKey(KeyEvent& key) {
  if (GridModel::TypedBox() == nullptr) Control::OfferKey(key);
}

void GridModel::OfferChar(int& character) {
  if (GridModel::TypedBox() == nullptr) Control::OfferChar(character);
}

void GridModel::HandleChar(int character) {
  if (TextBox* const box = GridModel::TypedBox()) box->HandleChar(character);
}

bool GridModel::HandleKey(const KeyEvent& key) {
  if (Finder.IsOpen()) return Finder.HandleKey(key);
  if (Look.IsTyped()) return Look.HandleKey(key);
  if (key.AsksUndo() && Undo) {
    Undo.Raise();
    return true;
  }
  if (key.AsksRedo() && Redo) {
    Redo.Raise();
    return true;
  }
  if (HandleCtrlKey(key)) return true;
  const bool extends = key.Shift == keys::kShift;
  if (key.Shift != 0 && key.Shift != keys::kCtrl && !extends) return false;
  CellAt to = extends ? CellAt{RowSel, ColSel} : CellAt{Row, Col};
  if (!MoveByKey(key.KeyCode, to)) return false;
  // A cursor on the titles of an empty grid goes nowhere.
  if (to.row < FixedRows || to.row >= Rows) return true;
  if (extends) {
    selectsAll_ = false;
    RowSel = to.row;
    ColSel = to.col;
  } else {
    KeyMoveTo(to.row, to.col);
  }
  return true;
}

void GridModel::RequireUserCell(int row, int col) const {
  RequireReachable();
  const std::string called = FullName() + " row " + std::to_string(row);
  if (row < FixedRows || row >= Rows || col < 0 || col >= Cols) {
    throw Refused(called + ", column " + std::to_string(col) + " is no cell of the grid");
  }
  if (!IsRowShown(row)) throw Refused(called + " is hidden");
}

int GridModel::UserCol() const {
  if (IsColShown(Col)) return Col;
  const int right = ColBeside(Col, 1);
  return right != Col ? right : ColBeside(Col, -1);
}

void GridModel::UserMoveTo(int row, int col) {
  RequireUserCell(row, col);
  RequireSeen(*this, col);
  if (!OwnerForm().UserFocus(*this)) return;
  Finder.Close();
  Look.EndTyping();
  KeyMoveTo(row, col);
}

void GridModel::KeyMoveTo(int row, int col) {
  Row.PutSilently(row);
  Col.PutSilently(col);
  CursorMoved();
}

void GridModel::UserDoubleClickRow(int row) {
  UserMoveTo(row, UserCol());
  DblClick.Raise();
}

void GridModel::UserDoubleClick() { UserDoubleClickRow(Row); }

}  // namespace quillon
