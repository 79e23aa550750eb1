#pragma once

#include <cstdint>
#include <string>

#include "host/data/CDbLink.h"

namespace quillon {

/// The other side of a voucher's line: an account and its head; code 0 when there is none.
struct OtherSide {
  std::int64_t Code = 0;
  std::string Head;
};

/// The account of the voucher's largest line on the side opposite to the amount's. A line of amount 0 has no
/// other side.
OtherSide FindOtherSide(CDbLink& db, std::int64_t voucherId, Amount amount);

}  // namespace quillon
