#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "host/controls/CGridPlus.h"
#include "host/values/Amount.h"

namespace quillon {

/// Rows added below the titles one after the other, with room made in steps. Finish leaves no empty room, but
/// always one row below the titles.
class GridRows {
 public:
  static constexpr int kStep = 100;

  /// `last` is the last row that is taken already.
  explicit GridRows(GridModel& grid, int last = 0, int step = kStep)
      : grid_(grid), last_(last), step_(step) {}

  /// The next row, which is there.
  int Next() {
    if (++last_ >= grid_.Rows) grid_.Rows = last_ + step_;
    return last_;
  }
  int Last() const { return last_; }
  void Finish() { grid_.Rows = last_ < 1 ? 2 : last_ + 1; }

 private:
  GridModel& grid_;
  int last_;
  int step_;
};

/// Row `row` of the footer: a title and sums in format "C2".
void ShowTotals(CGridPlus& grid, int row, int titleCol, const std::string& title,
                std::initializer_list<std::pair<int, Amount>> sums);

}  // namespace quillon
