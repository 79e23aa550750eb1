#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "desk/services/StoredVoucher.h"
#include "host/data/CDbLink.h"
#include "host/values/Amount.h"
#include "host/values/Date.h"
#include "host/values/Errors.h"

namespace quillon {

/// One account line of a voucher.
struct VoucherLine {
  std::int64_t Account = 0;
  Amount Value;  ///< above zero is a debit

  bool operator==(const VoucherLine&) const = default;
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

  bool IsNumberOwn = false;       ///< the number is the firm's own: no other voucher of the type has it
  std::int64_t Party = 0;         ///< of its document row; 0 has none
  bool TakesTransporter = false;  ///< the document row names the party's transporter too
  std::int64_t LeafBank = 0;      ///< the leaf of a cheque that pays the voucher
  std::int64_t LeafNumber = 0;    ///< 0 is paid by none
};

/// What the books hold has changed since the user saw it; nothing was stored.
class VoucherRefused : public HostError {
 public:
  enum class Cause { kChanged, kNumber, kLeaf };

  VoucherRefused(Cause cause, const std::string& why) : HostError(why), cause_(cause) {}
  Cause Why() const { return cause_; }

 private:
  Cause cause_;
};

/// Stores vouchers in the books of a year. Each call is kept or undone as a whole, inside a transaction of
/// the caller with that. Store, Replace and Delete of their own transaction are tried again where another
/// desk stores at the same moment, so that no number is given twice.
class VoucherStore {
 public:
  explicit VoucherStore(CDbLink& year) : year_(year) {}

  /// Stores a voucher whole and answers its id. Throws HostError for a voucher without a date, with less than
  /// two lines, with a line of no account or no amount, or whose lines do not come to zero; VoucherRefused
  /// for a number or a leaf that is taken.
  std::int64_t Store(const NewVoucher& voucher);

  /// Puts a voucher in the place of another, which keeps its id, its number where the new one is empty, and
  /// the cleared dates and serials of the lines that stay. Throws as Store does, and VoucherRefused where the
  /// books no longer hold it as it was read.
  void Replace(const StoredVoucher& before, const NewVoucher& voucher);

  /// Deletes a voucher with its narration and document rows, and gives its leaf free. Throws VoucherRefused
  /// where the books no longer hold it as it was read.
  void Delete(const StoredVoucher& before);

  /// The number that the next voucher of a type gets, as wide as the numbers before it.
  std::string NextNumber(const std::string& type);

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

  /// The next of all, of a day, and of a type.
  struct Next {
    std::int64_t Id = 1;
    std::int64_t Serial = 1;
    std::string Number;
  };

  /// What a line takes over from the one that stood in its place.
  struct Kept {
    std::int64_t Serial = 0;
    Date Cleared;
  };

  template <class Work>
  void DoWhole(Work work);
  Next FindNext(const std::string& type, Date day);
  Common NewCommon(const NewVoucher& voucher, std::int64_t& serial);
  void RequireFree(const NewVoucher& voucher);
  void WriteLine(const Common& common, const NewVoucher& voucher, const VoucherLine& line, int number,
                 const Kept& kept);
  void WriteAgain(const StoredVoucher& before, const NewVoucher& voucher, const Common& common);
  void NameOtherSides(const std::string& id);
  void RequireUnchanged(const StoredVoucher& before);
  void WriteDocument(const std::string& id, const NewVoucher& voucher);
  void UseLeaf(const Common& common, const NewVoucher& voucher);
  void FreeLeaves(const std::string& id);
  void DropNarrations(const StoredVoucher& before);
  std::int64_t NextSerial(Date day);
  std::string StoreNarration(const std::string& narration);

  CDbLink& year_;
};

}  // namespace quillon
