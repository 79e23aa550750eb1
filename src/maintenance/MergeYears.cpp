#include "maintenance/MergeYears.h"

#include "host/services/FinYear.h"

namespace quillon {

namespace {

constexpr int kFarthest = 5;

/// The last year that opens on the way from the open one, in steps of one year.
int Reach(int open, int step, FinYear& year) {
  int reached = open;
  for (int away = 1; away <= kFarthest; ++away) {
    bool ok = false;
    year.OpenYear(open + step * away, ok);
    if (!ok) break;
    reached = open + step * away;
  }
  return reached;
}

}  // namespace

MergeYears MergeYears::Around(int open, FinYear& year) {
  const int first = Reach(open, -1, year);
  return {first, Reach(open, 1, year)};
}

}  // namespace quillon
