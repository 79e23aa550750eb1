#pragma once

#include <QRect>
#include <vector>

#include "desk/qt/adapters/ColumnChoices.h"
#include "host/controls/GridModel.h"

namespace quillon {

/// Where the cells of a grid lie, in pixels from the top left of all rows and columns. Hidden rows and
/// columns are left out once, so that they cost nothing afterwards.
class GridLayout {
 public:
  /// Rows and titles.
  void Measure(const GridModel& grid);

  /// Quick, whatever the number of rows. `needs` are the widths, in twips, below which a column would not
  /// tell what it has; `room` is the width to fill, in pixels.
  void MeasureColumns(const GridModel& grid, const ColumnChoices& choices, const std::vector<long>& needs,
                      int room);

  /// False when rows or columns were added or taken since.
  bool Fits(const GridModel& grid) const;

  /// The rows that scroll, without the hidden ones, and the titles above them.
  const std::vector<int>& Rows() const { return rows_; }
  const std::vector<int>& Titles() const { return titles_; }

  int ColLeft(int col) const { return lefts_[static_cast<std::size_t>(col)]; }
  int ColWidth(int col) const { return ColLeft(col + 1) - ColLeft(col); }
  int Width() const { return lefts_.back(); }

  /// The same in twips.
  const std::vector<long>& ColumnTwips() const { return widths_; }

  /// The columns that the user put aside; empty where there is none.
  const std::vector<bool>& Aside() const { return aside_; }

  /// The columns that take the room that the others leave.
  const std::vector<bool>& Takers() const { return takers_; }
  int Cols() const { return static_cast<int>(lefts_.size()) - 1; }

  /// By place among the shown rows.
  int RowTop(std::size_t place) const { return tops_[place]; }
  int RowHeight(std::size_t place) const { return tops_[place + 1] - tops_[place]; }
  int Height() const { return tops_.back(); }
  int TitleTop(std::size_t place) const { return titleTops_[place]; }
  int TitleRowHeight(std::size_t place) const { return titleTops_[place + 1] - titleTops_[place]; }
  int TitleHeight() const { return titleTops_.back(); }

  /// The place of the row at `y`; the number of rows below the last one.
  std::size_t PlaceAt(int y) const;

  /// The place of a row, or of the next shown one; where rows are shown in another order than their own, one
  /// that is left out has a place beyond all.
  std::size_t PlaceOf(int row) const;

  /// The shown column at `x`; -1 right of the last one.
  int ColAt(int x) const;

 private:
  int modelRows_ = 0;
  std::vector<std::size_t> places_;  // of each row, where they are shown in another order than their own
  std::vector<int> rows_;
  std::vector<int> tops_{0};
  std::vector<int> titles_;
  std::vector<int> titleTops_{0};
  std::vector<int> lefts_{0};
  std::vector<long> widths_;
  std::vector<bool> takers_;
  std::vector<bool> aside_;
};

}  // namespace quillon
