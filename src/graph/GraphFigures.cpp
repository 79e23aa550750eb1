#include "graph/GraphFigures.h"

#include <utility>

#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr int kThousands = 1000;
constexpr std::int64_t kLargestPlain = 100'000;

std::size_t Place(std::int64_t element, std::size_t count) {
  if (element < 1 || element > static_cast<std::int64_t>(count))
    throw SubscriptError("graph element " + std::to_string(element));
  return static_cast<std::size_t>(element - 1);
}

}  // namespace

GraphFigures::GraphFigures() {
  constexpr std::size_t kElements[] = {kMostDays, GraphCalendar::kMonths, GraphCalendar::kQuarters};
  for (std::size_t unit = 0; unit < kUnits; ++unit) {
    for (Row& row : rows_.at(unit)) row.amounts.resize(kElements[unit]);
  }
}

const GraphFigures::Row& GraphFigures::RowOf(GraphUnit unit, int row) const {
  if (row < 0 || row >= static_cast<int>(kRows)) throw SubscriptError("graph row " + std::to_string(row));
  return rows_.at(static_cast<std::size_t>(unit)).at(static_cast<std::size_t>(row));
}

GraphFigures::Row& GraphFigures::RowOf(GraphUnit unit, int row) {
  return const_cast<Row&>(std::as_const(*this).RowOf(unit, row));
}

Amount& GraphFigures::ElementOf(GraphUnit unit, int row, std::int64_t element) {
  std::vector<Amount>& amounts = RowOf(unit, row).amounts;
  return amounts[Place(element, amounts.size())];
}

Amount GraphFigures::At(GraphUnit unit, int row, int element) const {
  const std::vector<Amount>& amounts = RowOf(unit, row).amounts;
  return amounts[Place(element, amounts.size())];
}

int GraphFigures::Divisor(GraphUnit unit, int row) const { return RowOf(unit, row).divisor; }

void GraphFigures::Enter(int base, std::int64_t day, Date date, Amount amount,
                         const GraphCalendar& calendar) {
  if (day != 0) ElementOf(GraphUnit::Day, base, day) = amount;
  ElementOf(GraphUnit::Month, base, calendar.MonthPosition(date.Month())) += amount;
  ElementOf(GraphUnit::Quarter, base, calendar.QuarterPosition(date.Month())) += amount;
}

void GraphFigures::Total(int base, int days) {
  TotalUnit(GraphUnit::Day, base, days);
  TotalUnit(GraphUnit::Month, base, GraphCalendar::kMonths);
  TotalUnit(GraphUnit::Quarter, base, GraphCalendar::kQuarters);
}

void GraphFigures::TotalUnit(GraphUnit unit, int base, int count) {
  const auto grow = [](Row& row, Amount amount) {
    if (amount.Abs() > Amount::OfInteger(kLargestPlain)) row.divisor = kThousands;
  };
  Row& plain = RowOf(unit, base);
  Row& running = RowOf(unit, base + 1);
  plain.divisor = 1;
  running.divisor = 1;
  Amount total;
  for (int element = 1; element <= count; ++element) {
    const Amount amount = At(unit, base, element);
    total += amount;
    ElementOf(unit, base + 1, element) = total;
    grow(plain, amount);
    grow(running, total);
  }
}

}  // namespace quillon
