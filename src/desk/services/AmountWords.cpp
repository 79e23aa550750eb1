#include "desk/services/AmountWords.h"

#include <array>
#include <cstdint>

#include "desk/services/AmountFormat.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr std::array<std::string_view, 20> kSmall = {
    "",         "One",     "Two",     "Three",     "Four",     "Five",    "Six",
    "Seven",    "Eight",   "Nine",    "Ten",       "Eleven",   "Twelve",  "Thirteen",
    "Fourteen", "Fifteen", "Sixteen", "Seventeen", "Eighteen", "Nineteen"};
constexpr std::array<std::string_view, 10> kTens = {"",      "",      "Twenty",  "Thirty", "Forty",
                                                    "Fifty", "Sixty", "Seventy", "Eighty", "Ninety"};

struct Step {
  std::uint64_t value;
  std::string_view name;
};
constexpr std::array<Step, 4> kSteps = {
    {{10000000, "Crore"}, {100000, "Lakh"}, {1000, "Thousand"}, {100, "Hundred"}}};

void Add(std::string& words, std::string_view word) {
  if (word.empty()) return;
  if (!words.empty()) words += ' ';
  words += word;
}

/// Empty for 0. Above a crore the number of crores is itself in words: "One Lakh Crore".
std::string NumberWords(std::uint64_t number) {
  std::string words;
  for (const Step& step : kSteps) {
    if (number < step.value) continue;
    Add(words, NumberWords(number / step.value));
    Add(words, step.name);
    number %= step.value;
  }
  if (number >= kSmall.size()) {
    Add(words, kTens[number / 10]);
    number %= 10;
  }
  Add(words, kSmall[number]);
  return words;
}

}  // namespace

std::string AmountInWords(Amount amount, std::string_view style) {
  if (style != "A") throw HostError("Unknown style of amounts in words: " + std::string(style));
  const std::uint64_t paise = RoundedMagnitude(amount, 2);
  std::string words = paise == 0 ? "Zero" : NumberWords(paise / 100);
  if (paise % 100 != 0) Add(words, (words.empty() ? "Paise " : "and Paise ") + NumberWords(paise % 100));
  if (paise != 0 && amount < Amount()) words = "Minus " + words;
  return words + " Only";
}

}  // namespace quillon
