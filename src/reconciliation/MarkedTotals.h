#pragma once

#include <string>
#include <vector>

#include "host/values/Amount.h"

namespace quillon {

class GridModel;

/// Whether a row of the workbench counts as marked: it is cleared, or it is an opening balance.
bool IsMarked(const GridModel& grid, int row);

/// The sums of the marked rows' debits and credits. They are kept from one stored date to the next, so that a
/// date in a long statement does not cost a walk over all of it.
class MarkedTotals {
 public:
  /// The rows have changed otherwise than through Recount: the next Update walks all of them.
  void Forget() { known_ = false; }

  /// One row may have become marked or unmarked.
  void Recount(const GridModel& grid, int row);

  /// Brings the sums up to date.
  void Update(const GridModel& grid);

  Amount Debits() const { return debits_; }
  Amount Credits() const { return credits_; }

 private:
  void Count(const GridModel& grid, int row, bool marked);

  bool known_ = false;
  std::vector<bool> counted_;
  Amount debits_;
  Amount credits_;
};

}  // namespace quillon
