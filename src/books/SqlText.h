#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "host/values/Date.h"

/// The pieces that statements on the books are joined of, for module and desk alike.
namespace quillon::books {

/// The date as a literal, '2024-04-01'; empty for an empty date.
std::string SqlDate(Date date);

/// The pair that follows "between": '2024-04-01' and '2025-03-31'. Without the second date the first alone,
/// without the first nothing.
std::string SqlDate(Date first, Date second);

/// A date literal, or "Null" for no date.
std::string SqlDateOrNull(Date date);

/// The text in quotes, its own quotes doubled.
std::string SqlString(std::string_view text);

/// A whole number from a grid's text, as it goes into a statement: the number at its head, 0 when there is
/// none.
std::string SqlNumber(std::string_view text);
std::string SqlNumber(std::int64_t number);

/// Numbers with commas between them, as they stand behind "in".
std::string SqlNumbers(std::span<const std::int64_t> numbers);

/// The same of texts: 'A','B'.
std::string SqlStrings(std::span<const std::string> texts);

/// "dBook<>'MEM'": what counts in balances; `column` may carry an alias, "a.dBook".
std::string InBalances(const std::string& column = "dBook");

/// "dBook='0B'": an opening balance.
std::string IsOpening(const std::string& column = "dBook");

/// "a.dBook<>'MEM' and a.dBook<>'0B'": what stands in lists of entries.
std::string InLists(const std::string& column = "dBook");

}  // namespace quillon::books
