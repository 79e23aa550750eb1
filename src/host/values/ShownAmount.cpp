#include "host/values/ShownAmount.h"

namespace quillon {

namespace {

constexpr int kDecimals = 4;
constexpr std::size_t kMostDigits = 14;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view WithoutBlanks(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

/// Takes the side off the end of the text; whether it is the credit side.
bool TakeSide(std::string_view& text) {
  for (const std::string_view side : {"Dr.", "Cr."}) {
    if (!text.ends_with(side)) continue;
    text = WithoutBlanks(text.substr(0, text.size() - side.size()));
    return side.front() == 'C';
  }
  return false;
}

}  // namespace

std::optional<Amount> ShownAmount(std::string_view text) {
  text = WithoutBlanks(text);
  bool turned = TakeSide(text);
  if (text.starts_with('-')) {
    turned = !turned;
    text.remove_prefix(1);
  }
  std::int64_t units = 0;
  std::size_t digits = 0;
  int decimals = -1;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    const bool between = at > 0 && at + 1 < text.size() && IsDigit(text[at - 1]) && IsDigit(text[at + 1]);
    if (IsDigit(c)) {
      if (++digits > kMostDigits || decimals == kDecimals) return {};
      units = units * 10 + (c - '0');
      if (decimals >= 0) ++decimals;
    } else if (c == '.' && between && decimals < 0) {
      decimals = 0;
    } else if (c != ',' || !between || decimals >= 0) {
      return {};
    }
  }
  if (digits == 0) return {};
  for (int missing = std::max(decimals, 0); missing < kDecimals; ++missing) units *= 10;
  return Amount::OfUnits(turned ? -units : units);
}

}  // namespace quillon
