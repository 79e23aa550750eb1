#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/data/CDbLink.h"
#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

/// A line of a voucher as the books have it.
struct StoredLine {
  int Number = 0;
  std::int64_t Serial = 0;
  std::int64_t Account = 0;
  Amount Value;  ///< above zero is a debit
  Date Cleared;  ///< by the bank; empty while it is not
  std::int64_t NarrationId = 0;
  bool IsLocked = false;

  bool operator==(const StoredLine&) const = default;
};

/// A voucher as the books have it, with the cheque leaf that pays it.
struct StoredVoucher {
  std::int64_t Id = 0;
  Date Day;
  std::string Book;
  std::string Type;
  int Nature = 0;
  std::string Number;
  std::string Narration;  ///< of its first line
  std::vector<StoredLine> Lines;
  std::int64_t LeafBank = 0;
  std::int64_t LeafNumber = 0;  ///< 0: no leaf pays it

  bool operator==(const StoredVoucher&) const = default;

  /// Nothing for an id that no voucher has.
  static std::optional<StoredVoucher> Read(CDbLink& year, std::int64_t id);
};

}  // namespace quillon
