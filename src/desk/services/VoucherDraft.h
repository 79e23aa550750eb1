#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/services/VoucherKind.h"
#include "desk/services/VoucherStore.h"

namespace quillon {

/// A voucher as far as it is typed.
struct VoucherDraft {
  VoucherKind Kind = VoucherKind::kCashPayment;
  Date Day;
  std::string Number;  ///< empty takes the next one
  std::int64_t Main = 0;
  std::vector<VoucherLine> Lines;  ///< without the main account's
  std::string Narration;
  std::int64_t Cheque = 0;

  bool operator==(const VoucherDraft&) const = default;

  bool HasMain() const { return SpecOf(Kind).MainSide != 0; }

  /// What the main account gets, so that debits and credits come to the same; above zero is a debit.
  Amount MainValue() const;

  /// The lines as they are stored, the main account's first.
  std::vector<VoucherLine> AllLines() const;

  /// By how much the debits are above the credits. A voucher with a main account is even.
  Amount Difference() const;
};

/// What keeps a draft from being stored: where the user mends it, and why.
struct VoucherFault {
  enum class Field { kDay, kNumber, kMain, kAccount, kDebit, kCredit, kCheque };

  Field Where;
  std::size_t Line = 0;  ///< of the draft's lines; their count is the next one
  std::string Why;
};

/// Beyond it sums of a whole year could leave the range of an amount.
inline constexpr Amount kAmountLimit = Amount::OfUnits(1'000'000'000'000 * 10'000);

/// The first fault that the draft itself shows; nothing when it is whole and even.
std::optional<VoucherFault> FaultOf(const VoucherDraft& draft);

/// What is still to be typed, in a line for the screen; that it is complete when nothing is.
std::string StillMissing(const VoucherDraft& draft);

}  // namespace quillon
