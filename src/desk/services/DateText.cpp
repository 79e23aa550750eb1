#include "desk/services/DateText.h"

#include <array>
#include <tuple>
#include <vector>

#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr std::array<std::string_view, 12> kMonthNames = {"january",   "february", "march",    "april",
                                                          "may",       "june",     "july",     "august",
                                                          "september", "october",  "november", "december"};

/// The parts of a date as typed, 0 for a missing one.
struct Parts {
  int day = 0;
  int month = 0;
  int year = 0;
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return c >= 'a' && c <= 'z'; }

/// The value of a piece of digits that has one of the lengths allowed; -1 for anything else.
int NumberOf(const std::string& piece, std::size_t shortest, std::size_t longest) {
  if (piece.size() < shortest || piece.size() > longest || !IsDigit(piece[0])) return -1;
  return std::stoi(piece);
}

int MonthOf(const std::string& piece) {
  if (IsDigit(piece[0])) return NumberOf(piece, 1, 2);
  for (std::size_t m = 0; piece.size() >= 3 && m < kMonthNames.size(); ++m) {
    if (kMonthNames[m].substr(0, piece.size()) == piece) return static_cast<int>(m) + 1;
  }
  return -1;
}

int YearOf(const std::string& piece) {
  if (piece.size() == 4) return NumberOf(piece, 4, 4);
  const int year = NumberOf(piece, 2, 2);
  return year < 0 ? year : year + (year < 50 ? 2000 : 1900);
}

/// The runs of digits and of letters in a text in small letters; none when they are joined by something that
/// does not separate dates, or by more than one separator beside blanks.
std::vector<std::string> Pieces(const std::string& text) {
  std::vector<std::string> pieces;
  int marks = 1;  // a mark cannot come first
  for (std::size_t i = 0; i < text.size();) {
    const bool digit = IsDigit(text[i]);
    if (digit || IsLetter(text[i])) {
      const std::size_t start = i;
      while (i < text.size() && (digit ? IsDigit(text[i]) : IsLetter(text[i]))) ++i;
      pieces.push_back(text.substr(start, i - start));
      marks = 0;
    } else {
      if (std::string_view("/-. ").find(text[i]) == std::string_view::npos) return {};
      if (text[i] != ' ' && ++marks > 1) return {};
      ++i;
    }
  }
  return marks == 0 ? pieces : std::vector<std::string>();
}

/// Cuts 0504, 050424 and 05042024 into their parts.
std::vector<std::string> CutTogether(const std::string& digits) {
  std::vector<std::string> pieces = {digits.substr(0, 2), digits.substr(2, 2)};
  if (digits.size() > 4) pieces.push_back(digits.substr(4));
  return pieces;
}

bool ReadParts(const std::string& text, Parts& parts) {
  std::vector<std::string> pieces = Pieces(text::Lower(text::Trim(text)));
  if (pieces.size() == 1) {
    const std::size_t length = pieces[0].size();
    if (length == 4 || length == 6 || length == 8) pieces = CutTogether(pieces[0]);
  }
  if (pieces.empty() || pieces.size() > 3) return false;
  parts.day = NumberOf(pieces[0], 1, 2);
  parts.month = pieces.size() > 1 ? MonthOf(pieces[1]) : 0;
  parts.year = pieces.size() > 2 ? YearOf(pieces[2]) : 0;
  const bool named = (pieces.size() < 2 || parts.month > 0) && (pieces.size() < 3 || parts.year > 0);
  return parts.day > 0 && named;
}

/// A year that is typed short names no day of the first century.
Date ToDate(const Parts& parts) {
  const bool exists = parts.year >= 100 && Date::Exists(parts.year, parts.month, parts.day);
  return exists ? Date::Of(parts.year, parts.month, parts.day) : Date();
}

void Complete(Parts& parts, const DateFrame& frame) {
  if (parts.month == 0) {
    const bool inYear = frame.today >= frame.start && frame.today <= frame.end;
    const Date& from = inYear ? frame.today : frame.start;
    parts.month = from.Month();
    parts.year = from.Year();
  } else if (parts.year == 0) {
    const bool before =
        std::tuple(parts.month, parts.day) < std::tuple(frame.start.Month(), frame.start.Day());
    parts.year = frame.start.Year() + (before ? 1 : 0);
  }
}

}  // namespace

Date ReadDateText(const std::string& text, const std::string& reference, const DateFrame& frame) {
  Parts parts;
  if (!ReadParts(text, parts)) return {};
  Parts whole;
  if (ReadParts(reference, whole) && !ToDate(whole).IsEmpty()) {
    if (parts.month == 0) parts.month = whole.month;
    if (parts.year == 0) parts.year = whole.year;
  }
  Complete(parts, frame);
  return ToDate(parts);
}

std::string ParseDateText(const std::string& text, const std::string& reference, const DateFrame& frame) {
  return ReadDateText(text, reference, frame).Text();
}

bool ValidDate(const std::string& text, const DateFrame& frame) {
  return text::Trim(text).empty() || !ReadDateText(text, {}, frame).IsEmpty();
}

}  // namespace quillon
