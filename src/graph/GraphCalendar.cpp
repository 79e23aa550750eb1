#include "graph/GraphCalendar.h"

#include "host/values/Date.h"

namespace quillon {

GraphCalendar::GraphCalendar(int startMonth, int year) {
  int quarters = 0;
  for (int position = 1; position <= kMonths; ++position) {
    const int month = (startMonth + position - 2) % kMonths + 1;
    const int monthYear = month < startMonth ? year + 1 : year;
    const std::string name(Date::MonthName(month));
    monthLabels_[Index(position)] = name + " " + std::to_string(monthYear);
    monthPositions_[Index(month)] = position;
    if (month % 3 != 0) continue;
    quarterLabels_[Index(++quarters)] = std::string(Date::MonthName(month - 2)) + "-" + name;
    quarterPositions_[Index(static_cast<int>(QuarterNo(month).ToInteger()))] = quarters;
  }
}

Variant GraphCalendar::QuarterNo(int month) {
  if (month < 1 || month > kMonths) return {};
  return month <= 3 ? kQuarters : (month - 1) / 3;
}

int GraphCalendar::QuarterPosition(int month) const {
  return quarterPositions_.at(Index(static_cast<int>(QuarterNo(month).ToInteger())));
}

}  // namespace quillon
