#include "desk/services/StoredVoucher.h"

#include "books/SqlText.h"
#include "host/data/CDataSet.h"

namespace quillon {

std::optional<StoredVoucher> StoredVoucher::Read(CDbLink& year, std::int64_t id) {
  StoredVoucher voucher;
  CDataSet rows;
  for (rows.Open(
           "Select a.*,n.Narration from FAData a left join FANar n on a.NarrationID=n.NarrationID where "
           "a.VoucherID=" +
               books::SqlNumber(id) + " order by a.dVchSubNo",
           year);
       !rows.Eof(); rows.MoveNext()) {
    if (voucher.Id == 0) {
      voucher.Id = id;
      voucher.Day = rows.Field("dVchDate").ToDate();
      voucher.Book = rows.Field("dBook").ToText();
      voucher.Type = rows.Field("dTrnType").ToText();
      voucher.Nature = static_cast<int>(rows.Field("dTrnNature").ToInteger());
      voucher.Number = rows.Field("dVchNo").ToText();
      voucher.Narration = rows.Field("Narration").ToText();
    }
    voucher.Lines.push_back({static_cast<int>(rows.Field("dVchSubNo").ToInteger()),
                             rows.Field("dSrNo").ToInteger(), rows.Field("dcd").ToInteger(),
                             rows.Field("dAmt").ToAmount(), rows.Field("dBankDate").ToDate(),
                             rows.Field("NarrationID").ToInteger(), rows.Field("dLocked").ToInteger() == 1});
  }
  if (voucher.Id == 0) return std::nullopt;
  CDataSet leaf;
  leaf.Open("Select first 1 BankCode,ChqNo from ChqLeaves where VoucherID=" + books::SqlNumber(id) +
                " order by ChqNo",
            year);
  if (!leaf.Eof()) {
    voucher.LeafBank = leaf.Field("BankCode").ToInteger();
    voucher.LeafNumber = leaf.Field("ChqNo").ToInteger();
  }
  return voucher;
}

}  // namespace quillon
