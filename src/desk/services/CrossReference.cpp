#include "desk/services/CrossReference.h"

#include <array>

namespace quillon {

namespace {

constexpr const char* kLargest =
    "Select First 1 a.dcd,b.mhd from FAData a inner join FAMaster b on a.dcd=b.mcd where a.VoucherID=? and ";
constexpr const char* kOrder = " order by abs(a.dAmt) desc,a.dVchSubNo";

}  // namespace

OtherSide FindOtherSide(CDbLink& db, std::int64_t voucherId, Amount amount) {
  if (voucherId == 0 || amount.IsZero()) return {};
  const std::string side = amount > Amount() ? "a.dAmt<0" : "a.dAmt>0";
  const std::array<Variant, 1> values = {Variant(voucherId)};
  const std::vector<Variant> line = db.FirstRowWith(kLargest + side + kOrder, values);
  if (line.empty()) return {};
  return {line[0].ToInteger(), line[1].ToText()};
}

}  // namespace quillon
