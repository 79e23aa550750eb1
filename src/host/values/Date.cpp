#include "host/values/Date.h"

#include <array>
#include <chrono>
#include <ctime>

#include "host/values/Errors.h"

namespace quillon {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr std::array<std::string_view, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

year_month_day Civil(int y, int m, int d) {
  return year(y) / month(static_cast<unsigned>(m)) / day(static_cast<unsigned>(d));
}

year_month_day Civil(std::int32_t serial) { return year_month_day(sys_days(std::chrono::days(serial))); }

std::string Padded(int value, std::size_t width) {
  std::string text = std::to_string(value);
  return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

/// The number of an all-digit piece, -1 for anything else.
int Digits(std::string_view piece) {
  int value = 0;
  for (const char c : piece) {
    if (c < '0' || c > '9') return -1;
    value = value * 10 + (c - '0');
  }
  return piece.empty() ? -1 : value;
}

int MonthOf(std::string_view name) {
  const auto lower = [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); };
  for (int m = 0; m < 12; ++m) {
    bool same = name.size() == 3;
    for (std::size_t i = 0; same && i < 3; ++i)
      same = lower(kMonths[static_cast<std::size_t>(m)][i]) == lower(name[i]);
    if (same) return m + 1;
  }
  return -1;
}

}  // namespace

bool Date::Exists(int y, int m, int d) {
  return y >= 1 && y <= 9999 && m >= 1 && m <= 12 && d >= 1 && d <= 31 && Civil(y, m, d).ok();
}

Date Date::Of(int y, int m, int d) {
  if (!Exists(y, m, d)) throw HostError("There is no such date");
  return Date(static_cast<std::int32_t>(sys_days(Civil(y, m, d)).time_since_epoch().count()));
}

Date Date::Today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return Of(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

Date Date::Parse(std::string_view text) {
  const bool iso = text.size() == 10 && text[4] == '-' && text[7] == '-';
  const bool shown = text.size() == 11 && text[2] == '-' && text[6] == '-';
  if (!iso && !shown) return {};
  const int y = Digits(iso ? text.substr(0, 4) : text.substr(7));
  const int m = iso ? Digits(text.substr(5, 2)) : MonthOf(text.substr(3, 3));
  const int d = Digits(iso ? text.substr(8) : text.substr(0, 2));
  return Exists(y, m, d) ? Of(y, m, d) : Date();
}

int Date::Year() const { return static_cast<int>(Civil(serial_).year()); }

int Date::Month() const { return static_cast<int>(static_cast<unsigned>(Civil(serial_).month())); }

int Date::Day() const { return static_cast<int>(static_cast<unsigned>(Civil(serial_).day())); }

Date Date::AddDays(std::int64_t days) const {
  if (IsEmpty()) return *this;
  const Date last = Of(9999, 12, 31);
  if (days > last.serial_ - serial_ || days < Of(1, 1, 1).serial_ - serial_) throw OverflowError();
  return Date(static_cast<std::int32_t>(serial_ + days));
}

Date Date::AddYears(int years) const {
  if (IsEmpty()) return *this;
  if (years > 9999 - Year() || years < 1 - Year()) throw OverflowError();
  const int y = Year() + years;
  return Exists(y, Month(), Day()) ? Of(y, Month(), Day()) : Of(y, Month(), 28);
}

std::int64_t Date::Days(Date first, Date second) {
  if (first.IsEmpty() || second.IsEmpty()) throw HostError("A date is missing");
  return static_cast<std::int64_t>(second.serial_) - first.serial_;
}

std::string Date::Format(std::string_view picture) const {
  if (IsEmpty()) return {};
  std::string text;
  for (std::size_t i = 0; i < picture.size();) {
    std::size_t run = 1;
    while (i + run < picture.size() && picture[i + run] == picture[i]) ++run;
    switch (picture[i]) {
      case 'd':
        text += Padded(Day(), run);
        break;
      case 'M':
        text += run == 3 ? std::string(MonthName(Month())) : Padded(Month(), run);
        break;
      case 'y':
        text += run == 2 ? Padded(Year() % 100, 2) : Padded(Year(), 4);
        break;
      default:
        text += picture.substr(i, run);
    }
    i += run;
  }
  return text;
}

std::string_view Date::MonthName(int m) { return kMonths.at(static_cast<std::size_t>(m - 1)); }

}  // namespace quillon
