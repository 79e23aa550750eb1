#include "desk/driver/JsonText.h"

#include <cstdio>

#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr int kDeepest = 100;

/// What takes a value apart or lets it go does so level by level, so a deep one would end the process.
bool IsTooDeep(const std::string& line) {
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (quoted && c == '\\') {
      ++i;
    } else if (c == '"') {
      quoted = !quoted;
    } else if (!quoted && (c == '[' || c == '{')) {
      if (++depth > kDeepest) return true;
    } else if (!quoted && (c == ']' || c == '}')) {
      --depth;
    }
  }
  return false;
}

std::string FourDecimals(Amount amount) {
  const std::int64_t units = amount.Units();
  const std::uint64_t magnitude =
      units < 0 ? 0 - static_cast<std::uint64_t>(units) : static_cast<std::uint64_t>(units);
  char text[40];
  std::snprintf(text, sizeof text, "%s%llu.%04llu", units < 0 ? "-" : "",
                static_cast<unsigned long long>(magnitude / 10000),
                static_cast<unsigned long long>(magnitude % 10000));
  return text;
}

}  // namespace

Json ToJson(const Variant& value) {
  if (value.IsEmpty() || value.IsNull() || value.Is<std::shared_ptr<Object>>()) return nullptr;
  if (value.Is<bool>()) return value.As<bool>();
  if (value.Is<std::int64_t>()) return value.As<std::int64_t>();
  if (value.Is<double>()) return value.As<double>();
  if (value.Is<std::shared_ptr<Array>>()) {
    Json list = Json::array();
    for (const Variant& item : value.ToArray()) list.push_back(ToJson(item));
    return list;
  }
  return value.ToText();
}

Json ToDatabaseJson(const Variant& value) {
  if (value.Is<Amount>()) return FourDecimals(value.As<Amount>());
  if (value.Is<Date>()) return value.As<Date>().Format("yyyy-MM-dd");
  return ToJson(value);
}

Variant FromJson(const Json& value) {
  if (value.is_null()) return {};
  if (value.is_boolean()) return value.get<bool>();
  if (value.is_number_integer()) return value.get<std::int64_t>();
  if (value.is_number()) return value.get<double>();
  if (value.is_string()) return value.get<std::string>();
  if (!value.is_array()) throw HostError("This value is not understood: " + Line(value));
  Array items;
  for (const Json& item : value) items.push_back(FromJson(item));
  return items;
}

Json ParseLine(const std::string& line) {
  return IsTooDeep(line) ? Json(Json::value_t::discarded) : Json::parse(line, nullptr, false);
}

std::string Line(const Json& value) { return value.dump(-1, ' ', false, Json::error_handler_t::replace); }

}  // namespace quillon
