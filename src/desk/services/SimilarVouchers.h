#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "desk/services/VoucherDraft.h"
#include "host/data/CDbLink.h"

namespace quillon {

/// An entry that resembles a voucher about to be stored.
struct SimilarEntry {
  std::int64_t Voucher = 0;
  Date Day;
  std::string Book;
  std::string Number;
  std::string Narration;
  Amount Value;
};

/// Looks for entries that a voucher may be a double of: the same account with the same amount on the same
/// side within seven days; the same cheque number on the same bank; and of a bill the same number of the same
/// party in the year.
class SimilarVouchers {
 public:
  /// `self` is the voucher that is being changed; 0 for a new one.
  SimilarVouchers(CDbLink& year, const VoucherDraft& draft, std::int64_t self)
      : year_(year), draft_(draft), self_(self) {}

  /// Whom the voucher is with: its party, else the largest line beside the main account.
  std::int64_t Account() const;

  /// Each voucher once, by date.
  std::vector<SimilarEntry> Find() const;

 private:
  void AddAmounts(std::vector<SimilarEntry>& found, std::int64_t account) const;
  void AddCheques(std::vector<SimilarEntry>& found) const;
  void AddBills(std::vector<SimilarEntry>& found, std::int64_t account) const;
  std::vector<SimilarEntry> Read(const std::string& condition) const;
  std::string ChequeNumber() const;

  CDbLink& year_;
  const VoucherDraft& draft_;
  std::int64_t self_;
};

}  // namespace quillon
