#include "reconciliation/InterestOfRow.h"

#include <cmath>

namespace quillon {

namespace {

constexpr std::int64_t kLongestYear = 366;
constexpr std::int64_t kUsualYear = 365;

/// To two or four decimals, ties to the even digit.
double RoundedToEven(double value, int decimals) {
  const double scale = decimals == 4 ? 10000.0 : 100.0;
  return std::nearbyint(value * scale) / scale;
}

/// The steps and their order are the rule: the currency product is rounded before it is divided.
Amount InterestOn(Amount value, const InterestTerms& terms) {
  const Amount yearly = value * terms.Rate;
  const double interest = yearly.ToDouble() / 100.0 / terms.DayBasis;
  return Amount::OfDouble(RoundedToEven(interest, terms.Decimals));
}

}  // namespace

float InterestYearDays(bool isCalendarYear, Date start, Date end) {
  const Date first = isCalendarYear ? Date::Of(start.Year(), 1, 1) : start;
  const Date last = isCalendarYear ? Date::Of(start.Year(), 12, 31) : end;
  const std::int64_t days = Date::Days(first, last) + 1;
  return static_cast<float>(days > kLongestYear ? kUsualYear : days);
}

Amount InterestOfRow(Amount product, const InterestTerms& terms) {
  const Amount owedToUs = terms.IsBanks ? -product : product;
  if (terms.Method == "Product Method") return InterestOn(owedToUs.Abs(), terms);
  if (terms.Method == "CC Limit - Pay Only" && owedToUs < Amount()) return InterestOn(owedToUs.Abs(), terms);
  if (terms.Method == "FDR - Charge Only" && owedToUs > Amount()) return InterestOn(owedToUs, terms);
  return {};
}

}  // namespace quillon
