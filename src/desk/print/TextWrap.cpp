#include "desk/print/TextWrap.h"

#include "host/values/Text.h"

namespace quillon {

namespace {

using MeasureText = std::function<double(std::string_view)>;

/// The bytes of the longest head that fits, at least one character.
std::size_t FittingCharacters(std::string_view text, double width, const MeasureText& measure) {
  std::size_t end = text::CharBytes(text, 0);
  while (end < text.size()) {
    const std::size_t next = end + text::CharBytes(text, end);
    if (measure(text.substr(0, next)) > width) break;
    end = next;
  }
  return end;
}

/// The bytes of the words that fit on one line; 0 when not even the first does.
std::size_t FittingWords(std::string_view text, double width, const MeasureText& measure) {
  std::size_t fitting = 0;
  std::size_t at = text.find_first_not_of(' ');
  while (at != std::string_view::npos) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    if (measure(text.substr(0, end)) > width) return fitting;
    fitting = end;
    at = text.find_first_not_of(' ', end);
  }
  return text.size();
}

void WrapParagraph(std::string_view text, double width, const MeasureText& measure,
                   std::vector<WrappedLine>& lines) {
  while (true) {
    std::size_t end = FittingWords(text, width, measure);
    if (end == text.size()) break;
    if (end == 0) end = FittingCharacters(text, width, measure);
    if (end == text.size()) break;
    lines.push_back({text.substr(0, end), false});
    text.remove_prefix(end);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  }
  lines.push_back({text, true});
}

}  // namespace

std::vector<WrappedLine> WrapText(std::string_view text, double width, const MeasureText& measure) {
  std::vector<WrappedLine> lines;
  while (true) {
    const std::size_t end = text.find('\n');
    std::string_view paragraph = text.substr(0, end);
    if (paragraph.ends_with('\r')) paragraph.remove_suffix(1);
    WrapParagraph(paragraph, width, measure, lines);
    if (end == std::string_view::npos) return lines;
    text.remove_prefix(end + 1);
  }
}

}  // namespace quillon
