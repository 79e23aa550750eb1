#include "books/SqlText.h"

#include "books/BooksNames.h"
#include "host/values/Text.h"

namespace quillon::books {

std::string SqlDate(Date date) {
  return date.IsEmpty() ? std::string() : "'" + date.Format("yyyy-MM-dd") + "'";
}

std::string SqlDate(Date first, Date second) {
  if (first.IsEmpty() || second.IsEmpty()) return SqlDate(first);
  return SqlDate(first) + " and " + SqlDate(second);
}

std::string SqlDateOrNull(Date date) { return date.IsEmpty() ? "Null" : SqlDate(date); }

std::string SqlString(std::string_view text) {
  return "'" + text::ReplaceAll(std::string(text), "'", "''") + "'";
}

std::string SqlNumber(std::string_view text) { return std::to_string(ValInteger(text)); }

std::string SqlNumber(std::int64_t number) { return std::to_string(number); }

std::string SqlNumbers(std::span<const std::int64_t> numbers) {
  std::string text;
  for (const std::int64_t number : numbers) text += (text.empty() ? "" : ",") + SqlNumber(number);
  return text;
}

std::string SqlStrings(std::span<const std::string> texts) {
  std::string list;
  for (const std::string& text : texts) list += (list.empty() ? "" : ",") + SqlString(text);
  return list;
}

std::string InBalances(const std::string& column) { return column + "<>" + SqlString(kMemorandumBook); }

std::string IsOpening(const std::string& column) { return column + "=" + SqlString(kOpeningBook); }

std::string InLists(const std::string& column) {
  return InBalances(column) + " and " + column + "<>" + SqlString(kOpeningBook);
}

}  // namespace quillon::books
