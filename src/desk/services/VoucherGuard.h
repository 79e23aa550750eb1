#pragma once

#include <string>

#include "desk/services/StoredVoucher.h"
#include "host/services/FinYear.h"

namespace quillon {

/// What a year lets be entered, changed and deleted. Each answers why not, in the user's words; empty where
/// nothing stands against it.
class VoucherGuard {
 public:
  explicit VoucherGuard(FinYear& year) : year_(year) {}

  /// A day outside the year, or before one on which the books are closed.
  std::string WhyNotOn(Date day) const;

  /// A voucher that is locked, closed, an opening balance, made by a document of another side, or whose
  /// cheque is on its way to a printer.
  std::string WhyNotChange(const StoredVoucher& voucher) const;

 private:
  std::string WhyNotForDocuments(const StoredVoucher& voucher) const;

  FinYear& year_;
};

}  // namespace quillon
