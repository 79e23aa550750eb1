#pragma once

#include <string>
#include <string_view>

#include "host/Date.h"

namespace quillon {

/// The date as a literal, '2024-04-01'; empty for an empty date.
std::string SqlDate(Date date);

/// The pair that follows "between": '2024-04-01' and '2025-03-31'. Without the second date the first alone,
/// without the first nothing.
std::string SqlDate(Date first, Date second);

/// The text in quotes, its own quotes doubled.
std::string SqlString(std::string_view text);

}  // namespace quillon
