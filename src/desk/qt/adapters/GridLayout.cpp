#include "desk/qt/adapters/GridLayout.h"

#include <algorithm>

#include "desk/qt/adapters/Scale.h"
#include "host/controls/ColumnRoom.h"

namespace quillon {

namespace {

constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

}  // namespace

void GridLayout::Measure(const GridModel& grid) {
  modelRows_ = grid.Rows;
  rows_.clear();
  tops_.assign(1, 0);
  titles_.clear();
  titleTops_.assign(1, 0);
  const int fixed = std::min(grid.FixedRows(), grid.Rows());
  long twips = 0;
  for (int row = 0; row < fixed; ++row) {
    if (!grid.IsTitleShown(row)) continue;
    titles_.push_back(row);
    titleTops_.push_back(Scale::Px(twips += grid.RowHeight(row)));
  }
  twips = 0;
  places_.clear();
  if (grid.HasView()) places_.assign(static_cast<std::size_t>(grid.Rows()), kNowhere);
  for (int row = grid.OuterRow(1); row >= 0; row = grid.RowBeside(row, 1)) {
    if (grid.HasView()) places_[static_cast<std::size_t>(row)] = rows_.size();
    rows_.push_back(row);
    tops_.push_back(Scale::Px(twips += grid.RowHeight(row)));
  }
}

void GridLayout::MeasureColumns(const GridModel& grid, const ColumnChoices& choices,
                                const std::vector<long>& needs, int room) {
  std::vector<ColumnRoom::Column> columns;
  aside_.assign(choices.IsEmpty() ? 0 : static_cast<std::size_t>(grid.Cols()), false);
  const std::vector<ColumnChoices::Choice> chosen = choices.Of(grid);
  for (int col = 0; col < grid.Cols; ++col) {
    const ColumnChoices::Choice& choice = chosen[static_cast<std::size_t>(col)];
    if (choice.isAside) aside_[static_cast<std::size_t>(col)] = true;
    const bool isShown = grid.IsColVisible(col) && !choice.isAside;
    const long need = needs[static_cast<std::size_t>(col)];
    const long width = std::max(grid.ColWidth(col), need);
    const bool isText = grid.ColAlignment(col) == kAlignLeft;
    columns.push_back({isShown ? width : 0, isText, isText ? 0 : need, choice.width});
  }
  takers_ = ColumnRoom::Takers(columns);
  widths_ = ColumnRoom::Share(columns, Scale::Twips(room));
  lefts_.assign(1, 0);
  long twips = 0;
  for (const long width : widths_) lefts_.push_back(Scale::Px(twips += width));
}

bool GridLayout::Fits(const GridModel& grid) const { return modelRows_ == grid.Rows && Cols() == grid.Cols; }

std::size_t GridLayout::PlaceAt(int y) const {
  const auto after = std::upper_bound(tops_.begin(), tops_.end(), std::max(y, 0));
  return static_cast<std::size_t>(after - tops_.begin()) - 1;
}

std::size_t GridLayout::PlaceOf(int row) const {
  if (!places_.empty()) {
    return row >= 0 && row < modelRows_ ? places_[static_cast<std::size_t>(row)] : kNowhere;
  }
  return static_cast<std::size_t>(std::lower_bound(rows_.begin(), rows_.end(), row) - rows_.begin());
}

int GridLayout::ColAt(int x) const {
  if (x < 0 || x >= Width()) return -1;
  return static_cast<int>(std::upper_bound(lefts_.begin(), lefts_.end(), x) - lefts_.begin()) - 1;
}

}  // namespace quillon
