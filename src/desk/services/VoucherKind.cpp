#include "desk/services/VoucherKind.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr std::array<VoucherKindSpec, 8> kKinds{{
    {VoucherKind::kCashReceipt, "Cash Receipt", "RC", "Cash A/c", 1, "46", 0},
    {VoucherKind::kCashPayment, "Cash Payment", "PC", "Cash A/c", -1, "46", 0},
    {VoucherKind::kBankReceipt, "Bank Receipt", "BR", "Bank A/c", 1, "47", 5001},
    {VoucherKind::kBankPayment, "Bank Payment", "BP", "Bank A/c", -1, "47", 5011},
    {VoucherKind::kContra, "Contra", "CN", "Paid from", -1, "46,47", 5021},
    {VoucherKind::kJournal, "Journal", "J", "", 0, "", 0},
    {VoucherKind::kSale, "Sale", "SL", "Sold to", 1, "46,130,140", 0},
    {VoucherKind::kPurchase, "Purchase", "PR", "Bought from", -1, "46,130,140", 0},
}};

}  // namespace

std::span<const VoucherKindSpec> VoucherKinds() { return kKinds; }

const VoucherKindSpec& SpecOf(VoucherKind kind) { return kKinds.at(static_cast<std::size_t>(kind)); }

VoucherKind KindOfType(std::string_view type) {
  const auto known = std::find_if(kKinds.begin(), kKinds.end(), [type](const VoucherKindSpec& spec) {
    return type.starts_with(spec.TypePrefix);
  });
  return known != kKinds.end() ? known->Kind : VoucherKind::kJournal;
}

bool IsBill(VoucherKind kind) { return kind == VoucherKind::kSale || kind == VoucherKind::kPurchase; }

}  // namespace quillon
