#include "host/controls/TextLines.h"

#include <algorithm>

#include "host/forms/Runtime.h"
#include "host/values/Text.h"

namespace quillon {

TextLines::TextLines(const std::string& text, const Font& font, long width) : font_(font), width_(width) {
  int start = 0;
  for (std::size_t at = 0;;) {
    const std::size_t feed = text.find('\n', at);
    const std::size_t stop = feed == std::string::npos ? text.size() : feed;
    const bool hasReturn = feed != std::string::npos && feed > at && text[feed - 1] == '\r';
    const std::string line = text.substr(at, stop - at - (hasReturn ? 1 : 0));
    Wrap(line, start);
    if (feed == std::string::npos) return;
    start = lines_.back().stop + (hasReturn ? 2 : 1);
    at = feed + 1;
  }
}

/// The bytes of the text that one line takes, with the blanks after its last word.
std::size_t TextLines::Fitting(const std::string& text) const {
  std::size_t taken = 0;
  while (taken < text.size()) {
    const std::size_t word = std::min(text.find(' ', text.find_first_not_of(' ', taken)), text.size());
    if (gRuntime->TextWidth(font_, text.substr(0, word)) > width_) break;
    taken = std::min(text.find_first_not_of(' ', word), text.size());
  }
  if (taken > 0) return taken;
  // A word that is wider than the box is broken where the box ends.
  taken = text::CharBytes(text, 0);
  while (taken < text.size()) {
    const std::size_t next = taken + text::CharBytes(text, taken);
    if (gRuntime->TextWidth(font_, text.substr(0, next)) > width_) break;
    taken = next;
  }
  return taken;
}

void TextLines::Wrap(const std::string& text, int start) {
  std::string rest = text;
  for (;;) {
    const bool wraps = width_ > 0 && gRuntime != nullptr && !rest.empty();
    const std::size_t bytes = wraps ? Fitting(rest) : rest.size();
    Line line;
    line.text = rest.substr(0, bytes);
    line.start = start;
    line.stop = start + static_cast<int>(text::Length(line.text));
    line.end = line.stop;
    // Behind the last blank of a broken line the caret stands in the next one.
    if (bytes < rest.size() && line.end > line.start) --line.end;
    start = line.stop;
    rest.erase(0, bytes);
    lines_.push_back(std::move(line));
    if (rest.empty()) return;
  }
}

int TextLines::LineAt(int place) const {
  const auto after = std::upper_bound(lines_.begin(), lines_.end(), place,
                                      [](int wanted, const Line& line) { return wanted < line.start; });
  return std::max(static_cast<int>(after - lines_.begin()) - 1, 0);
}

long TextLines::Indent(int place) const {
  const Line& line = lines_[static_cast<std::size_t>(LineAt(place))];
  const auto units = static_cast<std::size_t>(std::max(place - line.start, 0));
  return gRuntime->TextWidth(font_, text::Left(line.text, units));
}

int TextLines::PlaceNear(int line, long indent) const {
  const Line& wanted = lines_[static_cast<std::size_t>(line)];
  int place = wanted.start;
  long before = 0;
  for (int next = place + 1; next <= wanted.end; ++next) {
    const std::string head = text::Left(wanted.text, static_cast<std::size_t>(next - wanted.start));
    if (static_cast<int>(text::Length(head)) != next - wanted.start) continue;  // half a character
    const long width = gRuntime->TextWidth(font_, head);
    if (width - indent > indent - before) break;
    before = width;
    place = next;
  }
  return place;
}

}  // namespace quillon
