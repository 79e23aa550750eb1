#include "desk/sample/SamplePiece.h"

namespace quillon {

namespace {

void WriteLeaves(const SampleYearSoFar& year) {
  int id = 0;
  for (const auto& [bank, leaves] : year.Cheques.Leaves()) {
    for (const SampleLeaf& leaf : leaves) {
      const Variant none = Variant::Null();
      const bool isIssued = leaf.Voucher != 0;
      const Variant values[] = {++id,
                                bank,
                                leaf.Number,
                                leaf.Received,
                                leaf.Issued,
                                isIssued ? Variant(leaf.Voucher) : none,
                                leaf.IsCancelled ? Variant("Y") : none,
                                isIssued ? Variant(leaf.Party) : none,
                                isIssued ? Variant(leaf.Voucher) : none,
                                isIssued ? Variant(leaf.Value) : none};
      year.Link.ExecuteWith(
          "insert into ChqLeaves "
          "(ID,BankCode,ChqNo,RctDate,IsuDate,VoucherID,Cancelled,PartyCode,NarrationID,Amount) "
          "values (?,?,?,?,?,?,?,?,?,?)",
          values);
    }
  }
}

}  // namespace

SamplePiece ChequeLeavesSample() { return {10, WriteLeaves}; }

}  // namespace quillon
