#include "correspondence/LabelText.h"

#include "host/values/Text.h"

namespace quillon {

std::string LabelText(const std::vector<std::string>& lines) {
  if (lines.empty()) return {};
  std::string text = text::Trim(lines[0]) + "  ";
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const bool repeats = text::Lower(text::Trim(lines[i])) == text::Lower(text::Trim(lines[i - 1]));
    if (!repeats) text += "\r\n  " + lines[i];
  }
  return text;
}

}  // namespace quillon
