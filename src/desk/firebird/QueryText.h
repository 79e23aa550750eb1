#pragma once

#include <span>
#include <string>
#include <vector>

#include "host/values/Variant.h"

namespace quillon {

/// The query with these columns after those of its select list; a bare "*" there becomes the columns of these
/// tables.
std::string WithColumns(const std::string& query, const std::vector<std::string>& tables,
                        const std::vector<std::string>& columns);

/// The statement with values in the place of its question marks, as a person would write it. It has no quoted
/// texts.
std::string WithLiterals(const std::string& statement, std::span<const Variant> values);

}  // namespace quillon
