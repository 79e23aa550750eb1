#pragma once

#include <string>
#include <string_view>

namespace quillon {

/// The search form of an account head: upper case, letters and digits only. The vowel signs of Indian scripts
/// count as letters.
std::string PressHead(std::string_view text);

/// A master's name for showing: blanks folded, words of all capitals capitalised ("RAM & SONS" gives "Ram &
/// Sons"); a single letter, and a word with small letters, stays.
std::string TidyName(std::string_view text);

}  // namespace quillon
