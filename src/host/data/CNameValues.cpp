#include "host/data/CNameValues.h"

#include <algorithm>
#include <set>

#include "host/values/Errors.h"
#include "host/values/StoredText.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// Works on the bag as it is and on one that may be changed.
template <class Items>
auto Find(Items& items, const std::string& name) {
  return std::find_if(items.begin(), items.end(),
                      [&](const auto& item) { return text::EqualNoCase(item.first, name); });
}

}  // namespace

void CNameValues::SetItem(const std::string& name, const std::string& value) {
  if (const auto item = Find(items_, name); item != items_.end()) {
    item->second = value;
  } else {
    items_.emplace_back(name, value);
  }
}

std::string CNameValues::Item(const std::string& name) const {
  const auto item = Find(items_, name);
  return item == items_.end() ? std::string() : item->second;
}

std::string CNameValues::Text() const {
  std::string text;
  for (const auto& [name, value] : items_) {
    text += stored::Escape(name) + stored::kEndOfName + stored::Escape(value) + stored::kEndOfEntry;
  }
  return text;
}

void CNameValues::Load(const std::string& text) {
  std::vector<std::pair<std::string, std::string>> items;
  std::set<std::string> names;
  for (const std::string& entry : stored::Entries(text)) {
    const std::size_t sign = entry.find(stored::kEndOfName);
    if (sign == std::string::npos) throw HostError("The stored settings are damaged: a name has no value");
    items.emplace_back(stored::Unescape(entry.substr(0, sign)), stored::Unescape(entry.substr(sign + 1)));
    if (!names.insert(text::Lower(items.back().first)).second) {
      throw HostError("The stored settings are damaged: a name stands twice");
    }
  }
  items_ = std::move(items);
}

}  // namespace quillon
