#include "desk/services/CrossReference.h"

#include "host/CDataSet.h"

namespace quillon {

OtherSide FindOtherSide(CDbLink& db, std::int64_t voucherId, Amount amount) {
  if (voucherId == 0 || amount.IsZero()) return {};
  CDataSet lines;
  lines.Open(
      "Select First 1 a.dcd,b.mhd from FAData a inner join FAMaster b on a.dcd=b.mcd where a.VoucherID=" +
          std::to_string(voucherId) + (amount > Amount() ? " and a.dAmt<0" : " and a.dAmt>0") +
          " order by abs(a.dAmt) desc,a.dVchSubNo",
      db);
  if (lines.Eof()) return {};
  return {lines.Field(std::size_t{0}).ToInteger(), lines.Field(std::size_t{1}).ToText()};
}

}  // namespace quillon
