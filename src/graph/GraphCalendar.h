#pragma once

#include <array>
#include <string>

#include "host/values/Variant.h"

namespace quillon {

/// The months and quarters of a financial year, in its order; positions count from 1, 0 is none. Quarters end
/// with March, June, September and December, whatever month the year begins with.
class GraphCalendar {
 public:
  static constexpr int kMonths = 12;
  static constexpr int kQuarters = 4;

  /// Of no year: all labels are empty.
  GraphCalendar() = default;

  /// `startMonth` is 1 to 12, `year` the calendar year in which the financial year begins.
  GraphCalendar(int startMonth, int year);

  /// The quarter of a month in the Indian financial year; empty for what is no month.
  static Variant QuarterNo(int month);

  /// "Apr 2024"; by position.
  const std::string& MonthLabel(int position) const { return monthLabels_.at(Index(position)); }

  /// "Apr-Jun"; by position.
  const std::string& QuarterLabel(int position) const { return quarterLabels_.at(Index(position)); }

  /// Where a month, 1 to 12, and its quarter stand in the year.
  int MonthPosition(int month) const { return monthPositions_.at(Index(month)); }
  int QuarterPosition(int month) const;

 private:
  static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

  std::array<std::string, kMonths + 1> monthLabels_;
  std::array<std::string, kQuarters + 1> quarterLabels_;
  std::array<int, kMonths + 1> monthPositions_{};
  std::array<int, kQuarters + 1> quarterPositions_{};
};

}  // namespace quillon
