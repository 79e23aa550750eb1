#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/values/Amount.h"
#include "host/values/Variant.h"

namespace quillon {

/// The amount without its sign, counted in units of the last of `decimals` (0 to 4) decimals, halves upwards.
std::uint64_t RoundedMagnitude(Amount amount, int decimals);

/// Keys: "c" groups the Indian way (12,34,567.00), "n" does not; the digit, 0 to 4, is the decimals. A small
/// letter shows what rounds to zero as an empty text, a capital shows it (0.00). Throws HostError for any
/// other key.
std::string FormatAmount(Amount amount, std::string_view key);

/// The same for any value that counts as a number; empty and null count as 0, texts are read as ParseAmount
/// does.
std::string FormatValue(const Variant& value, std::string_view key);

/// Two to four decimals: "9.50", "9.1234".
std::string FormatRate(Amount rate);

/// The number at the head of a text as shown: blanks before it and grouping commas are passed over, whatever
/// else cannot belong to it ends it, as " Dr." does. No number gives 0. Throws OverflowError.
Amount ParseAmount(std::string_view text);

/// Halves away from zero; throws HostError unless `decimals` is "0" to "4".
Amount RoundAmount(Amount amount, std::string_view decimals);

}  // namespace quillon
