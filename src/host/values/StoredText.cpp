#include "host/values/StoredText.h"

#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon::stored {

namespace {

/// What must not stand in a stored value, and at the same place of the second text the letter that stands for
/// it.
constexpr std::string_view kEscaped("\\;,=|\r\n\0", 8);
constexpr std::string_view kLetters = "bsceprn0";

[[noreturn]] void Damaged() { throw HostError("The stored settings are damaged"); }

}  // namespace

std::string Escape(std::string_view value) {
  std::string text;
  text.reserve(value.size());
  for (const char c : value) {
    const std::size_t at = kEscaped.find(c);
    if (at == std::string_view::npos) {
      text += c;
    } else {
      text += '\\';
      text += kLetters[at];
    }
  }
  return text;
}

std::string Unescape(std::string_view text) {
  std::string value;
  value.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      if (kEscaped.find(text[i]) != std::string_view::npos) Damaged();
      value += text[i];
      continue;
    }
    ++i;
    const std::size_t at = i < text.size() ? kLetters.find(text[i]) : std::string_view::npos;
    if (at == std::string_view::npos) Damaged();
    value += kEscaped[at];
  }
  return value;
}

std::vector<std::string> Entries(std::string_view text) {
  if (text.empty()) return {};
  if (text.back() != kEndOfEntry) Damaged();
  text.remove_suffix(1);
  return text::Split(text, std::string_view(&kEndOfEntry, 1));
}

}  // namespace quillon::stored
