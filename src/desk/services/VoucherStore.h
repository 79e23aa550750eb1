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

/// Stores vouchers in the books of a year. Each call is kept or undone as a whole, inside a transaction of
/// the caller with that.
class VoucherStore {
 public:
  explicit VoucherStore(CDbLink& year) : year_(year) {}

  /// Stores a voucher whole and answers its id. Throws HostError for a voucher without a date, with less than
  /// two lines, with a line of no account or no amount, or whose lines do not come to zero.
  std::int64_t Store(const NewVoucher& voucher);

  /// Stores a voucher's one line under that number and answers its id; it has no other side yet. Nothing sees
  /// to it that more lines come.
  std::int64_t Begin(const NewVoucher& voucher, int line);

  /// Adds the one line to a voucher that is there; its lines then name their other sides. Throws HostError
  /// for an id that no voucher has.
  void AddLine(std::int64_t id, const NewVoucher& voucher, int line);

 private:
  /// What the lines of a voucher have in common, as pieces of SQL.
  struct Common {
    std::string Id;
    std::string Number;
    std::string Narration;
  };

  Common NewCommon(const NewVoucher& voucher);
  void WriteLine(const Common& common, const NewVoucher& voucher, const VoucherLine& line, int number);
  void NameOtherSides(const std::string& id);
  std::int64_t NextId(const std::string& table, const std::string& column);
  std::string NextNumber(const std::string& type);
  std::string StoreNarration(const std::string& narration);

  CDbLink& year_;
};

}  // namespace quillon
