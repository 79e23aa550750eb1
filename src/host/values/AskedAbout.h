#pragma once

#include <cstdio>
#include <string_view>

namespace quillon {

/// Answers "--help" and "--version" wherever they stand among a program's words; false when neither was asked
/// for.
inline bool AskedAbout(int count, char** words, const char* program, const char* version, const char* usage) {
  for (int i = 1; i < count; ++i) {
    const std::string_view word = words[i];
    if (word == "--help") std::fputs(usage, stdout);
    if (word == "--version") std::printf("%s %s\n", program, version);
    if (word == "--help" || word == "--version") return true;
  }
  return false;
}

}  // namespace quillon
