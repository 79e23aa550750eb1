#include "desk/print/RecordFields.h"

#include <algorithm>

#include "host/values/Text.h"

namespace quillon {

std::string FieldText(const CDataSet& record, const std::string& name) {
  if (record.State() == 0 || record.Eof()) return {};
  const std::vector<std::string>& names = record.FieldNames();
  const bool known = std::any_of(names.begin(), names.end(),
                                 [&](const std::string& each) { return text::EqualNoCase(each, name); });
  return known ? text::Trim(record.Field(name).ToText()) : std::string();
}

std::string JoinFields(const CDataSet& record, std::initializer_list<const char*> names,
                       const std::string& separator) {
  std::vector<std::string> parts;
  for (const char* name : names) parts.push_back(FieldText(record, name));
  std::erase(parts, "");
  return text::Join(parts, separator);
}

}  // namespace quillon
