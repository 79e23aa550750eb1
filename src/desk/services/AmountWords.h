#pragma once

#include <string>
#include <string_view>

#include "host/values/Amount.h"

namespace quillon {

/// Style "A", the only one: lakh and crore in capitalised words, as "Twelve Lakh Thirty Four Thousand Five
/// Hundred Sixty Seven and Paise Fifty Only". Rounded to whole paise; a negative amount begins with "Minus".
/// Throws HostError for another style.
std::string AmountInWords(Amount amount, std::string_view style);

}  // namespace quillon
