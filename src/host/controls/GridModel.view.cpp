#include "host/controls/GridModel.h"

#include <algorithm>

namespace quillon {

void GridModel::SetView(std::vector<int> rows) {
  places_.assign(static_cast<std::size_t>(Rows()), -1);
  for (std::size_t place = 0; place < rows.size(); ++place) {
    RequireRow(rows[place]);
    places_[static_cast<std::size_t>(rows[place])] = static_cast<int>(place);
  }
  view_ = std::move(rows);
  Touched();
}

void GridModel::ClearView() {
  Look.Forget();
  DropView();
}

void GridModel::DropView() {
  if (!view_) return;
  view_.reset();
  places_.clear();
  Touched();
}

int GridModel::PlaceInView(int row) const {
  return row >= 0 && row < Rows ? places_[static_cast<std::size_t>(row)] : -1;
}

/// The shown row at a place of the view, or at the next one that has one; -1 beyond the last.
int GridModel::FirstInView(int place, int step) const {
  for (; place >= 0 && place < static_cast<int>(view_->size()); place += step) {
    const int row = (*view_)[static_cast<std::size_t>(place)];
    if (IsRowVisible(row)) return row;
  }
  return -1;
}

int GridModel::RowBeside(int row, int step) const {
  if (!view_) return VisibleRowFrom(row + step, step);
  return PlaceInView(row) >= 0 ? FirstInView(PlaceInView(row) + step, step) : OuterRow(step);
}

int GridModel::OuterRow(int step) const {
  if (!view_) return VisibleRowFrom(step > 0 ? FixedRows : Rows - 1, step);
  return FirstInView(step > 0 ? 0 : static_cast<int>(view_->size()) - 1, step);
}

std::vector<int> GridModel::ShownRows() const {
  std::vector<int> rows;
  for (int row = OuterRow(1); row >= 0; row = RowBeside(row, 1)) rows.push_back(row);
  return rows;
}

}  // namespace quillon
