#pragma once

namespace quillon {

class FinYear;

/// The years that a merge in all years goes through, by the calendar years in which they start.
struct MergeYears {
  int First = 0;
  int Last = 0;

  /// Those around the open year without a gap, at most five on either side. `year` is bound to one of them or
  /// to none afterwards.
  static MergeYears Around(int open, FinYear& year);
};

}  // namespace quillon
