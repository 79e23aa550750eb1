#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {

/// Money and rates: a signed 64-bit count of ten-thousandths. Every operation throws OverflowError instead of
/// leaving the range.
class Amount {
 public:
  constexpr Amount() = default;

  static constexpr Amount OfUnits(std::int64_t tenThousandths) { return Amount(tenThousandths); }
  static Amount OfInteger(std::int64_t whole);

  /// Rounds to four decimals, ties to the even digit. For values that a rule works out in floating point.
  static Amount OfDouble(double value);

  /// The plain decimal number at the head of a text, read digit by digit: sign, digits, point, digits.
  /// Decimals past the fourth round to it, ties to the even digit. No number gives 0.
  static Amount OfText(std::string_view text);

  constexpr std::int64_t Units() const { return units_; }
  double ToDouble() const;
  constexpr bool IsZero() const { return units_ == 0; }

  Amount Abs() const;

  /// Rounds halves away from zero; `decimals` from 0 to 4.
  Amount Rounded(int decimals) const;

  /// The whole part, rounded towards minus infinity.
  std::int64_t Floor() const;

  /// Plain decimal text without grouping and without trailing zeros: "-12.5".
  std::string ToString() const;

  Amount& operator+=(Amount other) { return *this = *this + other; }
  Amount& operator-=(Amount other) { return *this = *this - other; }

  friend Amount operator+(Amount a, Amount b);
  friend Amount operator-(Amount a, Amount b);
  friend Amount operator-(Amount a);

  /// Currency multiplication: the product is rounded to four decimals, ties to the even digit.
  friend Amount operator*(Amount a, Amount b);
  friend Amount operator*(Amount a, std::int64_t whole);

  friend constexpr auto operator<=>(Amount, Amount) = default;

 private:
  constexpr explicit Amount(std::int64_t units) : units_(units) {}

  std::int64_t units_ = 0;
};

}  // namespace quillon
