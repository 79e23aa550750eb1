#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Texts are UTF-8; lengths and positions count UTF-16 units, as the stored texts and rules of the books do.
namespace quillon::text {

std::size_t Length(std::string_view text);

/// The first `units` of the text; never cuts a character in two (a half pair is dropped).
std::string Left(std::string_view text, std::size_t units);

/// From position `start`, counted from 1, at most `units`.
std::string Mid(std::string_view text, std::size_t start, std::size_t units = std::string::npos);

/// Unicode's upper and lower case.
std::string Upper(std::string_view text);
std::string Lower(std::string_view text);

/// Without the blanks at both ends.
std::string Trim(std::string_view text);

bool EqualNoCase(std::string_view a, std::string_view b);

std::vector<std::string> Split(std::string_view text, std::string_view separator);
std::string Join(const std::vector<std::string>& parts, std::string_view separator);
std::string ReplaceAll(std::string text, std::string_view what, std::string_view with);

/// The Unicode value of the first character of a text that is not empty, and the text of one.
int CodePoint(std::string_view text);
std::string OfCodePoint(int character);

/// The byte length of the character that starts at byte `at` of valid or damaged UTF-8; at least 1.
std::size_t CharBytes(std::string_view text, std::size_t at);

/// The text with every byte that is no UTF-8 replaced by U+FFFD.
std::string Repaired(std::string_view text);

}  // namespace quillon::text

namespace quillon {

/// The number at the head of a text, after leading blanks; stops at the first character that cannot belong to
/// it, a comma too. No number gives 0, and so does one too small for floating point; one too large throws
/// OverflowError.
double Val(std::string_view text);

/// The same cut to a whole number; throws OverflowError outside 64 bits.
long long ValInteger(std::string_view text);

}  // namespace quillon
