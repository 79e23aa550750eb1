#pragma once

#include <cstdint>
#include <string>

#include "desk/services/VoucherDraft.h"

namespace quillon {

/// The book that vouchers of a kind stand in, and their transaction type.
struct VoucherBook {
  std::string Book;
  std::string Type;
};

/// Finds the book of a voucher. Cash has one book and each bank its own: the one that most of its entries
/// stand in, else the next free one. The firm then keeps it for the bank.
class VoucherBooks {
 public:
  explicit VoucherBooks(CDbLink& year) : year_(year) {}

  VoucherBook Of(const VoucherDraft& draft);

 private:
  struct BankBook {
    std::string Book;
    std::string Suffix;  ///< of its types
  };

  BankBook OfBank(std::int64_t bank);
  BankBook UsedBook(std::int64_t bank);
  std::string FreeSuffix();
  std::int64_t BankAmong(const VoucherDraft& draft);

  CDbLink& year_;
};

/// The party that a voucher is with: the account of its largest line among those whom the firm trades with,
/// 0 when there is none.
std::int64_t PartyOf(CDbLink& year, const VoucherDraft& draft);

/// The narration that the firm keeps under a code; the text itself when it is no code. A code may be typed
/// with a dot before it.
std::string NarrationOfCode(CDbLink& common, const std::string& typed);

}  // namespace quillon
