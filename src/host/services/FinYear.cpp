#include "host/services/FinYear.h"

#include "host/values/Text.h"

namespace quillon {

std::string YearName(int startYear) {
  return std::to_string(startYear) + "-" + std::to_string(startYear + 1).substr(2);
}

Variant FinYear::Get(const std::string& member) {
  const std::string name = text::Lower(member);
  if (name == "startyear") return StartYear();
  if (name == "startmonth") return StartMonth();
  if (name == "startdate") return StartDate();
  if (name == "enddate") return EndDate();
  return Object::Get(member);
}

}  // namespace quillon
