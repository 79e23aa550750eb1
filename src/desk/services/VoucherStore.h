#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/data/CDbLink.h"
#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

/// One account line of a voucher.
struct VoucherLine {
  std::int64_t Account = 0;
  Amount Value;  ///< above zero is a debit
};

/// A voucher before it is stored.
struct NewVoucher {
  Date Day;
  std::string Book;
  std::string Type;
  int Nature = 0;         ///< of the transaction; 0 has none
  std::string Number;     ///< empty takes the next one of its type
  std::string Narration;  ///< one for all its lines
  std::vector<VoucherLine> Lines;
};

/// Stores vouchers in the books of a year, each whole or not at all.
class VoucherStore {
 public:
  explicit VoucherStore(CDbLink& year) : year_(year) {}

  /// Answers the voucher's id. Inside a transaction of the caller it is kept or undone with that. Throws
  /// HostError for a voucher without a date, with less than two lines, with a line of no account or no
  /// amount, or whose lines do not come to zero.
  std::int64_t Store(const NewVoucher& voucher);

  /// Stores further lines of a voucher that is there, which together come to zero. Answers nothing new.
  void Append(std::int64_t id, const NewVoucher& more);

 private:
  std::int64_t StoreLines(const NewVoucher& voucher);
  void WriteLines(std::int64_t id, int firstLine, const std::string& number, const NewVoucher& voucher);
  std::int64_t NextId(const std::string& table, const std::string& column);
  std::string NextNumber(const std::string& type);
  std::string StoreNarration(const std::string& narration);

  CDbLink& year_;
};

}  // namespace quillon
