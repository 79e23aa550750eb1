#pragma once

#include <optional>
#include <string_view>

#include "host/values/Amount.h"

namespace quillon {

/// The amount that a cell shows: digits, in groups or not, a point or none, "-" before them; "Cr." behind
/// turns the sign, "Dr." does not. Nothing for any other text, and for an amount out of range.
std::optional<Amount> ShownAmount(std::string_view text);

}  // namespace quillon
