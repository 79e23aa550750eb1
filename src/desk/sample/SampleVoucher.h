#pragma once

#include <string>
#include <vector>

#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

/// One account line of a voucher.
struct SampleLine {
  int Account = 0;
  Amount Value;  ///< above zero is a debit
  Date Cleared;  ///< by the bank; empty when not
};

/// A voucher of the sample firm before it is written.
struct SampleVoucher {
  Date Day;
  std::string Book;
  std::string Type;
  int Nature = 0;
  std::string Number;  ///< empty takes the next one of its type
  std::string Narration;
  bool IsLocked = false;
  std::vector<SampleLine> Lines;

  /// What FADocs keeps of it: so many rows, none without a party.
  int DocumentRows = 0;
  int Party = 0;
  int Transporter = 0;
  int Agent = 0;
  bool IsReturned = false;

  /// The series of its inventory document; empty for none.
  std::string Series;
  bool IsDocumentLocked = false;

  /// When the bank clears a line that this year leaves open; empty when the next year does not clear it
  /// either.
  Date ClearedLater;

  /// Whether a bank line waits for the bank.
  bool IsOpen() const;

  static bool IsBank(int account);

  /// The book of a bank's entries, and the types of its receipts and payments.
  static std::string BankBook(int bank);
  static std::string ReceiptType(int bank);
  static std::string PaymentType(int bank);
};

}  // namespace quillon
