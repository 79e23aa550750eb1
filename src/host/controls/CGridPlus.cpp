#include "host/controls/CGridPlus.h"

#include <algorithm>

namespace quillon {

void GridFooter::SetRows(int rows) {
  if (rows < 0 || rows > kMostRows) throw SubscriptError("footer rows " + std::to_string(rows));
  rows_.resize(static_cast<std::size_t>(rows));
  grid_.Touched();
}

void GridFooter::SetHeight(long height) {
  height_ = height;
  grid_.Touched();
}

const GridFooter::RowData& GridFooter::At(int row) const {
  if (row < 0 || row >= Rows()) throw SubscriptError("footer row " + std::to_string(row));
  return rows_[static_cast<std::size_t>(row)];
}

std::string GridFooter::TextMatrix(int row, int col) const {
  const RowData& data = At(row);
  grid_.RequireCol(col);
  const auto at = static_cast<std::size_t>(col);
  return at < data.cells.size() ? data.cells[at] : std::string();
}

void GridFooter::SetTextMatrix(int row, int col, std::string_view text) {
  grid_.RequireCol(col);
  if (row >= Rows()) SetRows(row + 1);
  At(row);
  RowData& data = rows_[static_cast<std::size_t>(row)];
  const auto at = static_cast<std::size_t>(col);
  if (at >= data.cells.size()) data.cells.resize(at + 1);
  data.cells[at] = text;
  grid_.Touched();
}

void GridFooter::Clear() {
  for (RowData& row : rows_) row = {};
  grid_.Touched();
}

void GridFooter::PaintRow(int row, long backColor) {
  At(row);
  rows_[static_cast<std::size_t>(row)].backColor = backColor;
  grid_.Touched();
}

long GridFooter::BackColor(int row) const { return At(row).backColor; }

long CGridPlus::FooterLine() const {
  const long own = Footer.Rows() > 0 ? Footer.Height() / Footer.Rows() : 0;
  return own > 0 ? own : std::max(kDefaultRowHeight, RowHeightMin());
}

Control::State CGridPlus::Describe() const {
  State state = EditableGrid::Describe();
  Array footer;
  for (int row = 0; row < Footer.Rows(); ++row) {
    Array cells;
    for (int col = 0; col < Cols; ++col) cells.emplace_back(Footer.TextMatrix(row, col));
    footer.emplace_back(std::move(cells));
  }
  state.emplace_back("footer", footer);
  return state;
}

}  // namespace quillon
