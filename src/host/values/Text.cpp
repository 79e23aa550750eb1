#include "host/values/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <unicode/locid.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include "host/values/Errors.h"

namespace quillon::text {

namespace {

icu::UnicodeString Wide(std::string_view text) {
  return icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
}

std::string Narrow(const icu::UnicodeString& text) {
  std::string out;
  text.toUTF8String(out);
  return out;
}

bool IsPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::size_t CharBytes(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at, U8_MAX_LENGTH);
  int32_t bytes = 0;
  U8_FWD_1(rest.data(), bytes, static_cast<int32_t>(rest.size()));
  return static_cast<std::size_t>(bytes);
}

int CodePoint(std::string_view text) { return Wide(text.substr(0, CharBytes(text, 0))).char32At(0); }

std::string OfCodePoint(int character) { return Narrow(icu::UnicodeString(static_cast<UChar32>(character))); }

std::size_t Length(std::string_view text) {
  if (IsPlain(text)) return text.size();
  std::size_t units = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t bytes = CharBytes(text, i);
    units += bytes == 4 ? 2 : 1;
    i += bytes;
  }
  return units;
}

std::string Left(std::string_view text, std::size_t units) {
  std::size_t taken = 0;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t bytes = CharBytes(text, at);
    taken += bytes == 4 ? 2 : 1;
    if (taken > units) break;
    at += bytes;
  }
  return std::string(text.substr(0, at));
}

std::string Mid(std::string_view text, std::size_t start, std::size_t units) {
  const std::size_t before = start > 0 ? start - 1 : 0;
  const std::string head = Left(text, before);
  std::string_view rest = text.substr(head.size());
  if (!rest.empty() && Length(head) < before) {  // the start lies inside a pair: its second half is dropped
    rest.remove_prefix(CharBytes(rest, 0));
    if (units != std::string::npos && units > 0) --units;
  }
  return units == std::string::npos ? std::string(rest) : Left(rest, units);
}

std::string Upper(std::string_view text) {
  std::string out(text);
  if (!IsPlain(text)) return Narrow(Wide(text).toUpper(icu::Locale::getRoot()));
  std::transform(out.begin(), out.end(), out.begin(),
                 [](char c) { return static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c); });
  return out;
}

std::string Lower(std::string_view text) {
  std::string out(text);
  if (!IsPlain(text)) return Narrow(Wide(text).toLower(icu::Locale::getRoot()));
  std::transform(out.begin(), out.end(), out.begin(),
                 [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); });
  return out;
}

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool EqualNoCase(std::string_view a, std::string_view b) { return Lower(a) == Lower(b); }

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;
       at = text.find(separator, start)) {
    parts.emplace_back(text.substr(start, at - start));
    start = at + separator.size();
  }
  parts.emplace_back(text.substr(start));
  return parts;
}

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
  std::string out;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) out += separator;
    out += parts[i];
  }
  return out;
}

std::string ReplaceAll(std::string text, std::string_view what, std::string_view with) {
  std::size_t at = text.find(what);
  while (at != std::string::npos) {
    text.replace(at, what.size(), with);
    at = text.find(what, at + with.size());
  }
  return text;
}

std::string Repaired(std::string_view text) { return IsPlain(text) ? std::string(text) : Narrow(Wide(text)); }

}  // namespace quillon::text

namespace quillon {

namespace {

/// Of a number that floating point cannot hold: whether it is too small rather than too large.
bool IsTiny(std::string_view number) {
  const std::size_t exponent = number.find_first_of("eE");
  if (exponent != std::string_view::npos) return number[exponent + 1] == '-';
  return number.substr(0, number.find('.')).find_first_not_of("-0") == std::string_view::npos;
}

}  // namespace

double Val(std::string_view text) {
  std::size_t at = text.find_first_not_of(" \t\r\n");
  if (at == std::string_view::npos) return 0;
  const bool plus = text[at] == '+';
  if (plus) ++at;
  // Only digits, a sign, a point and an exponent belong to a number: from_chars alone would also take "inf".
  const std::size_t sign = !plus && text[at] == '-' ? 1 : 0;
  if (at + sign >= text.size() ||
      (text[at + sign] != '.' && (text[at + sign] < '0' || text[at + sign] > '9'))) {
    return 0;
  }
  double value = 0;
  const auto result = std::from_chars(text.data() + at, text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range && !IsTiny({text.data() + at, result.ptr}))
    throw OverflowError();
  return result.ec == std::errc() ? value : 0;
}

long long ValInteger(std::string_view text) {
  const double value = std::trunc(Val(text));
  constexpr double kLimit = 9223372036854775808.0;
  if (!(value < kLimit && value >= -kLimit)) throw OverflowError();
  return static_cast<long long>(value);
}

}  // namespace quillon
