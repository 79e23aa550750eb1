#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "host/Date.h"

namespace quillon::books {

/// A whole number from a grid's text, as it goes into a statement: the number at its head, 0 when there is
/// none.
std::string SqlNumber(std::string_view text);
std::string SqlNumber(std::int64_t number);

/// Numbers with commas between them, as they stand behind "in".
std::string SqlNumbers(std::span<const std::int64_t> numbers);

/// A date literal, or "Null" for no date.
std::string SqlDateOrNull(Date date);

}  // namespace quillon::books
