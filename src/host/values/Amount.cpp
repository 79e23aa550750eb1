#include "host/values/Amount.h"

#include <cmath>
#include <cstdlib>

#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr std::int64_t kScale = 10000;

__extension__ using Wide = __int128;

/// The magnitude of the lowest amount; digits past it cannot bring a number back into the range.
constexpr Wide kPastLimit = -static_cast<Wide>(INT64_MIN);

std::int64_t Narrow(Wide value) {
  if (value > INT64_MAX || value < INT64_MIN) throw OverflowError();
  return static_cast<std::int64_t>(value);
}

}  // namespace

Amount Amount::OfInteger(std::int64_t whole) { return Amount(Narrow(static_cast<Wide>(whole) * kScale)); }

Amount Amount::OfDouble(double value) {
  const double units = std::nearbyint(value * static_cast<double>(kScale));
  constexpr double kLimit = 9223372036854775808.0;  // 2^63, the first value that does not fit
  if (!(units < kLimit && units >= -kLimit)) throw OverflowError();
  return Amount(static_cast<std::int64_t>(units));
}

Amount Amount::OfText(std::string_view text) {
  std::size_t at = text.find_first_not_of(" \t\r\n");
  if (at == std::string_view::npos) return {};
  const bool negative = text[at] == '-';
  if (negative || text[at] == '+') ++at;
  Wide units = 0;
  int decimals = -1;  // -1 before the point
  int dropped = 0;    // the first digit past the fourth decimal
  bool droppedMore = false;
  for (; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '.' && decimals < 0) {
      decimals = 0;
    } else if (c < '0' || c > '9') {
      break;
    } else if (decimals < 4) {
      units = units * 10 + (c - '0');
      if (decimals >= 0) ++decimals;
      if (units > kPastLimit) throw OverflowError();
    } else if (decimals == 4) {
      dropped = c - '0';
      ++decimals;
    } else {
      droppedMore = droppedMore || c != '0';
    }
  }
  for (int i = decimals < 0 ? 0 : decimals; i < 4; ++i) units *= 10;
  if (dropped > 5 || (dropped == 5 && (droppedMore || units % 2 != 0))) ++units;
  return Amount(Narrow(negative ? -units : units));
}

double Amount::ToDouble() const { return static_cast<double>(units_) / static_cast<double>(kScale); }

Amount Amount::Abs() const { return units_ < 0 ? -*this : *this; }

Amount Amount::Rounded(int decimals) const {
  std::int64_t step = kScale;
  for (int i = 0; i < decimals; ++i) step /= 10;
  if (step <= 1) return *this;
  const std::int64_t rest = std::abs(units_ % step);
  const Wide cut = units_ - units_ % step;
  if (rest * 2 < step) return Amount(Narrow(cut));
  return Amount(Narrow(units_ < 0 ? cut - step : cut + step));
}

std::int64_t Amount::Floor() const {
  const std::int64_t whole = units_ / kScale;
  return units_ % kScale < 0 ? whole - 1 : whole;
}

std::string Amount::ToString() const {
  const std::uint64_t magnitude =
      units_ < 0 ? 0 - static_cast<std::uint64_t>(units_) : static_cast<std::uint64_t>(units_);
  std::string text = std::to_string(magnitude / kScale);
  if (const std::uint64_t rest = magnitude % kScale; rest != 0) {
    std::string decimals = std::to_string(kScale + static_cast<std::int64_t>(rest)).substr(1);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    text += "." + decimals;
  }
  return units_ < 0 ? "-" + text : text;
}

Amount operator+(Amount a, Amount b) { return Amount(Narrow(static_cast<Wide>(a.units_) + b.units_)); }

Amount operator-(Amount a, Amount b) { return Amount(Narrow(static_cast<Wide>(a.units_) - b.units_)); }

Amount operator-(Amount a) { return Amount(Narrow(-static_cast<Wide>(a.units_))); }

Amount operator*(Amount a, Amount b) {
  const Wide product = static_cast<Wide>(a.units_) * b.units_;
  Wide whole = product / kScale;
  const Wide rest = product % kScale < 0 ? -(product % kScale) : product % kScale;
  const bool up = rest * 2 > kScale || (rest * 2 == kScale && whole % 2 != 0);
  if (up) whole += product < 0 ? -1 : 1;
  return Amount(Narrow(whole));
}

Amount operator*(Amount a, std::int64_t whole) { return Amount(Narrow(static_cast<Wide>(a.units_) * whole)); }

}  // namespace quillon
