#include "desk/services/NarrationText.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr std::size_t kLongestNumber = 12;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The bytes of other scripts count as letters.
bool IsWord(char c) { return IsDigit(c) || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80; }

std::string AsciiLower(std::string text) {
  for (char& c : text) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
  return text;
}

bool Take(std::string_view text, std::size_t& at, std::string_view word) {
  if (text.substr(at, word.size()) != word) return false;
  at += word.size();
  return true;
}

void Skip(std::string_view text, std::size_t& at, std::string_view characters) {
  at = std::min(text.find_first_not_of(characters, at), text.size());
}

/// Where the digits of a cheque's number begin and end, when its name stands at `at`; begin = end when it
/// does not.
struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
};

Span NumberAt(std::string_view text, std::size_t at) {
  const bool named = Take(text, at, "cheque") || Take(text, at, "chq");
  if (!named && !Take(text, at, "ch")) return {};
  Skip(text, at, " .:-");
  const bool numbered = Take(text, at, "number") || Take(text, at, "no") || Take(text, at, "#");
  if (!named && !numbered) return {};
  Skip(text, at, " .:-#=");
  Span digits{at, at};
  while (digits.end < text.size() && IsDigit(text[digits.end])) ++digits.end;
  if (digits.end - digits.begin > kLongestNumber) return {};
  const std::string_view rest = text.substr(digits.end);
  if (!rest.empty() && IsWord(rest[0])) return {};
  const bool goesOn = rest.size() > 1 && std::string_view("/-.,").find(rest[0]) != std::string_view::npos;
  return goesOn && IsDigit(rest[1]) ? Span{} : digits;
}

std::string Without(const std::string& text, std::size_t begin, std::size_t end) {
  std::string before = text.substr(0, begin);
  std::string after = text.substr(end);
  if (!before.empty() && before.back() == '(' && !after.empty() && after[0] == ')') {
    before.pop_back();
    after.erase(0, 1);
  }
  after.erase(0, std::min(after.find_first_not_of(" ,;.-"), after.size()));
  before.erase(before.find_last_not_of(after.empty() ? " ,;-" : " -") + 1);
  return before.empty() || after.empty() ? before + after : before + " " + after;
}

/// As many whole words as fit, at least a part of the first; taken off the head of `words`.
std::string TakeLine(std::vector<std::string>& words, std::size_t width) {
  std::string line;
  std::size_t taken = 0;
  for (; taken < words.size(); ++taken) {
    const std::string longer = line.empty() ? words[taken] : line + " " + words[taken];
    if (text::Length(longer) > width) break;
    line = longer;
  }
  words.erase(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(taken));
  if (line.empty() && !words.empty()) {
    line = text::Left(words[0], width);
    if (line.empty()) line = words[0].substr(0, text::CharBytes(words[0], 0));
    words[0].erase(0, line.size());
  }
  return line;
}

}  // namespace

void ChqNoFromNarration(std::string& narration, std::string& chequeNo) {
  if (!chequeNo.empty()) return;
  const std::string lower = AsciiLower(narration);
  for (std::size_t at = lower.find("ch"); at != std::string::npos; at = lower.find("ch", at + 1)) {
    if (at > 0 && IsWord(lower[at - 1])) continue;
    const Span digits = NumberAt(lower, at);
    if (digits.begin == digits.end) continue;
    chequeNo = narration.substr(digits.begin, digits.end - digits.begin);
    narration = Without(narration, at, digits.end);
    return;
  }
}

std::string WrapLine(const std::string& text, int width, int line) {
  std::vector<std::string> words = text::Split(text, " ");
  std::erase(words, std::string());
  std::string wrapped;
  for (int i = 0; i < line; ++i) {
    if (words.empty()) return {};
    wrapped = TakeLine(words, static_cast<std::size_t>(std::max(width, 1)));
  }
  return wrapped;
}

}  // namespace quillon
