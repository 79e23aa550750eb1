#include "books/SqlText.h"

#include "host/IStd.h"
#include "host/Text.h"

namespace quillon::books {

std::string SqlNumber(std::string_view text) { return std::to_string(ValInteger(text)); }

std::string SqlNumber(std::int64_t number) { return std::to_string(number); }

std::string SqlNumbers(std::span<const std::int64_t> numbers) {
  std::string text;
  for (const std::int64_t number : numbers) text += (text.empty() ? "" : ",") + SqlNumber(number);
  return text;
}

std::string SqlDateOrNull(Date date) { return date.IsEmpty() ? "Null" : gStd->SqlDate(date); }

}  // namespace quillon::books
