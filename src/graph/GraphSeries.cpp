#include "graph/GraphSeries.h"

#include <algorithm>

#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kThousands = 1000;

std::string TitleOf(const std::string& own, int year) {
  return own.empty() ? std::to_string(year) + "-" + std::to_string(year + 1) : own;
}

/// A graph by quarter takes the caller's titles beside the next year only.
bool TakesTitles(GraphUnit unit, int comparison) {
  return unit == GraphUnit::Month ? comparison != kCompareNone : comparison == kCompareNext;
}

}  // namespace

std::vector<GraphSeries> SeriesOfGraph(GraphUnit unit, int comparison, int running, int year,
                                       const GraphTitles& titles) {
  const GraphTitles taken = TakesTitles(unit, comparison) ? titles : GraphTitles{};
  std::vector<GraphSeries> series{{GraphFigures::kCurrent + running, TitleOf(taken.Current, year)}};
  if (comparison == kComparePrevious || comparison == kCompareBoth)
    series.insert(series.begin(), {GraphFigures::kPrevious + running, TitleOf(taken.Previous, year - 1)});
  if (comparison == kCompareNext || comparison == kCompareBoth)
    series.push_back({GraphFigures::kNext + running, TitleOf(taken.Next, year + 1)});
  return series;
}

int CommonDivisor(const GraphFigures& figures, GraphUnit unit, const std::vector<GraphSeries>& series) {
  int divisor = 1;
  for (const GraphSeries& each : series) divisor = std::max(divisor, figures.Divisor(unit, each.Row));
  return divisor;
}

std::string GraphAxisTitle(const std::string& amount, const std::string& unit, int divisor) {
  const bool inThousands = divisor == kThousands;
  if (unit.empty()) return inThousands ? amount + " in  '000s" : amount;
  return amount + (inThousands ? " in  '000 " : " in ") + unit;
}

std::string ShortYearTitle(const std::string& title) {
  if (text::Mid(title, 5, 1) != "-") return title;
  return text::Mid(title, 3, 2) + "-" + text::Mid(title, text::Length(title) - 1);
}

}  // namespace quillon
