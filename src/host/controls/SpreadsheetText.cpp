#include "host/controls/SpreadsheetText.h"

#include "host/values/Date.h"
#include "host/values/ShownAmount.h"
#include "host/values/Text.h"

namespace quillon {

std::string SpreadsheetText(std::string_view cell, bool isFigure) {
  if (const Date date = Date::Parse(cell); !date.IsEmpty()) return date.Format("yyyy-MM-dd");
  if (isFigure) {
    if (const std::optional<Amount> amount = ShownAmount(cell)) return amount->ToString();
  }
  std::string text(cell);
  if (text.find_first_of("\t\r\n") == std::string::npos && !text.starts_with('"')) return text;
  return '"' + text::ReplaceAll(std::move(text), "\"", "\"\"") + '"';
}

std::vector<std::string> PastedLines(const std::string& text) {
  const std::string even = text::ReplaceAll(text::ReplaceAll(text, "\r\n", "\n"), "\r", "\n");
  std::vector<std::string> lines = text::Split(even, "\n");
  if (lines.size() > 1 && lines.back().empty()) lines.pop_back();
  for (std::string& line : lines) {
    line = text::Trim(line.substr(0, line.find('\t')));
    if (const Date date = Date::Parse(line); !date.IsEmpty()) line = date.Text();
  }
  return lines;
}

}  // namespace quillon
