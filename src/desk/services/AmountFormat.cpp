#include "desk/services/AmountFormat.h"

#include <algorithm>

#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr int kStoredDecimals = 4;

bool IsDecimals(char c) { return c >= '0' && c <= '0' + kStoredDecimals; }

/// Lakhs and crores: commas after the first three digits from the right, then after every two.
void GroupDigits(std::string& whole) {
  for (std::size_t at = whole.size() > 3 ? whole.size() - 3 : 0; at > 0; at = at > 2 ? at - 2 : 0) {
    whole.insert(at, ",");
  }
}

std::string Shown(std::uint64_t magnitude, std::size_t decimals, bool grouped) {
  std::string digits = std::to_string(magnitude);
  if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
  std::string whole = digits.substr(0, digits.size() - decimals);
  const std::string fraction = digits.substr(whole.size());
  if (grouped) GroupDigits(whole);
  return fraction.empty() ? whole : whole + "." + fraction;
}

}  // namespace

std::uint64_t RoundedMagnitude(Amount amount, int decimals) {
  const auto units = static_cast<std::uint64_t>(amount.Units());
  const std::uint64_t magnitude = amount.Units() < 0 ? 0 - units : units;
  std::uint64_t step = 1;
  for (int i = decimals; i < kStoredDecimals; ++i) step *= 10;
  return magnitude / step + (magnitude % step * 2 >= step && step > 1 ? 1 : 0);
}

std::string FormatAmount(Amount amount, std::string_view key) {
  static constexpr std::string_view kLetters = "cCnN";
  if (key.size() != 2 || kLetters.find(key[0]) == std::string_view::npos || !IsDecimals(key[1])) {
    throw HostError("Unknown number format: " + std::string(key));
  }
  const int decimals = key[1] - '0';
  const std::uint64_t magnitude = RoundedMagnitude(amount, decimals);
  if (magnitude == 0 && (key[0] == 'c' || key[0] == 'n')) return {};
  const bool grouped = key[0] == 'c' || key[0] == 'C';
  const std::string text = Shown(magnitude, static_cast<std::size_t>(decimals), grouped);
  return magnitude != 0 && amount < Amount() ? "-" + text : text;
}

std::string FormatValue(const Variant& value, std::string_view key) {
  return FormatAmount(value.Is<std::string>() ? ParseAmount(value.As<std::string>()) : value.ToAmount(), key);
}

std::string FormatRate(Amount rate) {
  std::string text = FormatAmount(rate, "N4");
  for (int spare = 2; spare > 0 && text.back() == '0'; --spare) text.pop_back();
  return text;
}

Amount ParseAmount(std::string_view text) {
  std::string number;
  bool point = false;
  for (const char c : text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()))) {
    if (c == ',' && !point) continue;
    const bool belongs =
        (c >= '0' && c <= '9') || (c == '.' && !point) || (number.empty() && (c == '-' || c == '+'));
    if (!belongs) break;
    point = point || c == '.';
    number += c;
  }
  return Amount::OfText(number);
}

Amount RoundAmount(Amount amount, std::string_view decimals) {
  if (decimals.size() != 1 || !IsDecimals(decimals[0])) {
    throw HostError("Amounts are rounded to 0 to 4 decimals, not to \"" + std::string(decimals) + "\"");
  }
  return amount.Rounded(decimals[0] - '0');
}

}  // namespace quillon
