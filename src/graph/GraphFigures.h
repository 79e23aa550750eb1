#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "graph/GraphCalendar.h"
#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

/// What the elements of a row of figures are.
enum class GraphUnit { Day, Month, Quarter };

/// The amounts of up to three years by day, month and quarter. Each year has a base row of plain figures and
/// behind it one of running totals. Elements count from 1; a row or element outside throws SubscriptError.
class GraphFigures {
 public:
  static constexpr int kMostDays = 366;

  // Base rows.
  static constexpr int kCurrent = 0;
  static constexpr int kPrevious = 2;
  static constexpr int kNext = 4;

  GraphFigures();

  /// Enters a day's amount: `day` counts from the first of the period. It replaces what the day had, and is
  /// added to the month and the quarter. An amount of the day before the first counts in these two alone;
  /// one from before that throws SubscriptError and counts nowhere.
  void Enter(int base, std::int64_t day, Date date, Amount amount, const GraphCalendar& calendar);

  /// The running totals of a base row, and how large the figures of both have grown; `days` are those of the
  /// period.
  void Total(int base, int days);

  Amount At(GraphUnit unit, int row, int element) const;

  /// 1000 for a row with a figure above 100,000 on either side of zero, else 1.
  int Divisor(GraphUnit unit, int row) const;

 private:
  struct Row {
    std::vector<Amount> amounts;  // element 1 first
    int divisor = 1;
  };
  static constexpr std::size_t kUnits = 3;
  static constexpr std::size_t kRows = 6;

  void TotalUnit(GraphUnit unit, int base, int count);
  Row& RowOf(GraphUnit unit, int row);
  const Row& RowOf(GraphUnit unit, int row) const;
  Amount& ElementOf(GraphUnit unit, int row, std::int64_t element);

  std::array<std::array<Row, kRows>, kUnits> rows_;
};

}  // namespace quillon
