#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quillon {

/// What a bookkeeper enters, in the order in which the kinds are offered.
enum class VoucherKind {
  kCashReceipt,
  kCashPayment,
  kBankReceipt,
  kBankPayment,
  kContra,
  kJournal,
  kSale,
  kPurchase,
};

/// How a kind of voucher is entered. Where it has a main account the amount of that is reckoned from the
/// other lines.
struct VoucherKindSpec {
  VoucherKind Kind;
  const char* Name;
  const char* TypePrefix;   ///< dTrnType begins with it
  const char* MainCaption;  ///< what the main account is called; empty for a kind without one
  int MainSide;             ///< 1: the main account is debited, -1: credited, 0: the kind has none
  const char* MainGroups;   ///< of the accounts that may be the main one, as behind "in"
  int Nature;               ///< dTrnNature
};

/// All kinds, in their order.
std::span<const VoucherKindSpec> VoucherKinds();
const VoucherKindSpec& SpecOf(VoucherKind kind);

/// The kind that a stored transaction type is of; what no other kind has is a journal.
VoucherKind KindOfType(std::string_view type);

/// Whether a kind is a bill, which carries a number of its own.
bool IsBill(VoucherKind kind);

}  // namespace quillon
