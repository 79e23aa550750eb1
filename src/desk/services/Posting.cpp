#include "desk/services/Posting.h"

#include "host/values/Errors.h"

namespace quillon {

void Posting::Add(CDbLink& year, std::string& voucher, const NewVoucher& line) {
  if (voucher.empty()) {
    voucher = "posting-" + std::to_string(++next_);
    pending_[voucher].Voucher = line;
  } else {
    const auto known = pending_.find(voucher);
    if (known == pending_.end()) throw HostError("There is no voucher " + voucher + " to post to");
    NewVoucher& waiting = known->second.Voucher;
    if (waiting.Lines.empty()) {
      waiting = line;
    } else {
      waiting.Lines.insert(waiting.Lines.end(), line.Lines.begin(), line.Lines.end());
    }
  }
  Pending& pending = pending_.at(voucher);
  Amount sum;
  for (const VoucherLine& one : pending.Voucher.Lines) sum += one.Value;
  if (!sum.IsZero()) return;
  VoucherStore store(year);
  if (pending.Stored == 0) {
    pending.Stored = store.Store(pending.Voucher);
  } else {
    store.Append(pending.Stored, pending.Voucher);
  }
  pending.Voucher.Lines.clear();
}

}  // namespace quillon
