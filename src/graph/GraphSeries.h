#pragma once

#include <string>
#include <vector>

#include "graph/GraphFigures.h"

namespace quillon {

/// Titles of the years that stand in place of those made of their numbers; an empty one stands in for none.
struct GraphTitles {
  std::string Previous;
  std::string Current;
  std::string Next;
};

/// A row of figures that is drawn, and what it is called.
struct GraphSeries {
  int Row = 0;
  std::string Title;

  bool IsNext() const { return Row >= GraphFigures::kNext; }
};

/// With what the current period is compared.
enum GraphComparison { kCompareNone, kComparePrevious, kCompareNext, kCompareBoth };

/// The series of a graph by month or quarter, the oldest first. `running` is 0 for plain figures and 1 for
/// running totals, `year` the calendar year in which the period begins.
std::vector<GraphSeries> SeriesOfGraph(GraphUnit unit, int comparison, int running, int year,
                                       const GraphTitles& titles);

/// The divisor of all series that are drawn together: that of thousands when one of them needs it.
int CommonDivisor(const GraphFigures& figures, GraphUnit unit, const std::vector<GraphSeries>& series);

/// "Amount in  '000s", "Weight in '000 Kg": what the axis of values says.
std::string GraphAxisTitle(const std::string& amount, const std::string& unit, int divisor);

/// The title of a year as the table of figures shows it: 2023-2024 as 23-24.
std::string ShortYearTitle(const std::string& title);

}  // namespace quillon
