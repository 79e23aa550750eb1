#include "desk/firebird/QueryText.h"

#include "host/values/Text.h"

namespace quillon {

namespace {

bool IsWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '$';
}

/// Where the query's own FROM begins, outside brackets and quotes.
std::size_t FindFrom(const std::string& query) {
  int depth = 0;
  char quote = 0;
  for (std::size_t i = 0; i < query.size(); ++i) {
    const char c = query[i];
    if (quote) {
      if (c == quote) quote = 0;
    } else if (c == '\'' || c == '"') {
      quote = c;
    } else if (c == '(') {
      ++depth;
    } else if (c == ')') {
      --depth;
    } else if (depth == 0 && i > 0 && !IsWordCharacter(query[i - 1]) && i + 4 < query.size() &&
               !IsWordCharacter(query[i + 4]) && text::EqualNoCase(query.substr(i, 4), "from")) {
      return i;
    }
  }
  return query.size();
}

std::string Quoted(const std::string& text) {
  std::string quoted("'");
  return quoted.append(text).append("'");
}

std::string Literal(const Variant& value) {
  if (value.IsNull() || value.IsEmpty()) return "null";
  if (value.Is<Date>()) {
    const Date date = value.As<Date>();
    return date.IsEmpty() ? "null" : Quoted(date.Format("yyyy-MM-dd"));
  }
  if (value.Is<std::string>()) return Quoted(text::ReplaceAll(value.As<std::string>(), "'", "''"));
  return value.ToText();
}

}  // namespace

std::string WithColumns(const std::string& query, const std::vector<std::string>& tables,
                        const std::vector<std::string>& columns) {
  const std::size_t from = FindFrom(query);
  std::string list = text::Trim(query.substr(0, from));
  const bool isBareStar = list.size() > 1 && list.back() == '*' && list[list.size() - 2] != '.';
  if (isBareStar) {
    list.pop_back();
    list += text::Join(tables, ".*,") + ".*";
  }
  return list + "," + text::Join(columns, ",") + " " + query.substr(from);
}

std::string WithLiterals(const std::string& statement, std::span<const Variant> values) {
  std::string result;
  std::size_t next = 0;
  for (const char c : statement) {
    if (c == '?' && next < values.size()) {
      result += Literal(values[next++]);
    } else {
      result += c;
    }
  }
  return result;
}

}  // namespace quillon
