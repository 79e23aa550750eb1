#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {

/// A calendar date of the years 1 to 9999, or none. An empty date sorts before every other.
class Date {
 public:
  constexpr Date() = default;

  /// Throws HostError when there is no such day.
  static Date Of(int year, int month, int day);
  static bool Exists(int year, int month, int day);
  static Date Today();

  /// Reads "dd-MMM-yyyy" and "yyyy-mm-dd"; empty when the text is neither or names no day.
  static Date Parse(std::string_view text);

  bool IsEmpty() const { return serial_ == kNone; }
  int Year() const;
  int Month() const;
  int Day() const;

  /// An empty date stays empty.
  Date AddDays(std::int64_t days) const;

  /// 29 February becomes 28 February where the year has none.
  Date AddYears(int years) const;

  /// Days from `first` to `second`, negative when it lies before.
  static std::int64_t Days(Date first, Date second);

  /// Pictures made of dd, d, MM, M, MMM, yy, yyyy and any other characters; months in English. An empty date
  /// gives an empty text.
  std::string Format(std::string_view picture) const;

  /// "dd-MMM-yyyy", the form of all texts on the screens.
  std::string Text() const { return Format("dd-MMM-yyyy"); }

  /// The three English letters of a month from 1 to 12.
  static std::string_view MonthName(int month);

  friend constexpr auto operator<=>(Date, Date) = default;

 private:
  static constexpr std::int32_t kNone = INT32_MIN;

  constexpr explicit Date(std::int32_t serial) : serial_(serial) {}

  std::int32_t serial_ = kNone;  // days since 1 January 1970
};

}  // namespace quillon
