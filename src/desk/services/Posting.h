#pragma once

#include <map>
#include <string>

#include "desk/services/VoucherStore.h"

namespace quillon {

/// The lines of vouchers as they come one by one. A voucher goes into the books, whole, as soon as its lines
/// come to zero; one that never does leaves no trace there.
class Posting {
 public:
  /// `voucher` is empty at the first line and names the voucher to the next ones.
  void Add(CDbLink& year, std::string& voucher, const NewVoucher& line);

 private:
  struct Pending {
    NewVoucher Voucher;
    std::int64_t Stored = 0;  ///< its id once lines of it are in the books
  };

  std::map<std::string, Pending> pending_;
  int next_ = 0;
};

}  // namespace quillon
