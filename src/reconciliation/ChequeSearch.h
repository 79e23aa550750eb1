#pragma once

#include <cstdint>
#include <string>

#include "host/values/Date.h"

namespace quillon {

/// Whether a cheque number typed beside a clear date is looked up: the And of the bits of both lengths in
/// bytes, two to a character, is not zero. So beside a whole date a number of four characters is left alone.
bool IsSearched(const std::string& dateText, const std::string& chequeNo);

/// The entries of an account whose narration holds the number, dated on the clear date or at most `days`
/// before; without a clear date, of whatever date. The number stands in the query as it was typed.
std::string ChequeQuery(std::int64_t account, const std::string& chequeNo, Date clear, std::int64_t days);

}  // namespace quillon
