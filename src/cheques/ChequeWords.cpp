#include "cheques/ChequeWords.h"

#include "host/values/Text.h"

namespace quillon {

ChequeWords SplitWords(const std::string& words, double width,
                       const std::function<double(const std::string&)>& measure) {
  const std::size_t whole = text::Length(words);
  std::size_t fitting = whole;
  while (fitting > 0 && measure(text::Left(words, fitting)) > width) --fitting;
  if (fitting == whole) return {words, ""};
  for (std::size_t at = fitting + 1; at > 0; --at) {
    if (text::Mid(words, at, 1) == " ") {
      return {text::Trim(text::Left(words, at)), text::Mid(words, at + 1)};
    }
  }
  return {words, ""};
}

double ShrunkSize(const std::vector<std::string>& lines, double size, double limit,
                  const std::function<double(const std::string&, double)>& measure) {
  for (const std::string& line : lines) {
    if (measure(line, size) > limit) size -= 1;
  }
  return size;
}

}  // namespace quillon
