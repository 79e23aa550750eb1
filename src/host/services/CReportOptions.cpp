#include "host/services/CReportOptions.h"

#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

template <class Map, class Key>
auto Known(const Map& map, const Key& key) {
  const auto found = map.find(key);
  return found == map.end() ? typename Map::mapped_type() : found->second;
}

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

/// The length of the "Name=" or "Name:=" that stands at `at`; 0 when none does.
std::size_t NameLength(const std::string& text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && (IsLetter(text[end]) || (end > at && text[end] >= '0' && text[end] <= '9')))
    ++end;
  if (end == at) return 0;
  if (end < text.size() && text[end] == ':') ++end;
  return end < text.size() && text[end] == '=' ? end + 1 - at : 0;
}

}  // namespace

void CReportOptions::SetOption(const std::string& name, const Variant& value) {
  options_[text::Lower(name)] = value;
}

void CReportOptions::SetColumnOption(int column, const std::string& name, const std::string& value) {
  columnOptions_[{column, text::Lower(name)}] = value;
}

void CReportOptions::SetVar(const std::string& name, const std::string& value) {
  variables_[text::Lower(name)] = value;
}

Variant CReportOptions::Option(const std::string& name) const { return Known(options_, text::Lower(name)); }

std::string CReportOptions::ColumnOption(int column, const std::string& name) const {
  return Known(columnOptions_, std::pair(column, text::Lower(name)));
}

std::string CReportOptions::Var(const std::string& name) const {
  return Known(variables_, text::Lower(name));
}

void CReportOptions::AddOptionText(const std::string& text) {
  if (text.empty()) return;
  if (NameLength(text, 0) == 0) throw HostError("A report option needs the form Name=Value: " + text);
  for (std::size_t name = 0; name != std::string::npos;) {
    const std::size_t value = name + NameLength(text, name);
    std::size_t comma = text.find(',', value);
    while (comma != std::string::npos && NameLength(text, comma + 1) == 0) comma = text.find(',', comma + 1);
    const std::size_t nameEnd = text.find_first_of(":=", name);
    SetOption(text.substr(name, nameEnd - name), text.substr(value, comma - value));
    name = comma == std::string::npos ? comma : comma + 1;
  }
}

}  // namespace quillon
