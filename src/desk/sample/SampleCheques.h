#pragma once

#include <map>
#include <vector>

#include "desk/sample/SampleRandom.h"
#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

/// A leaf of a cheque book, and the payment that it went to.
struct SampleLeaf {
  int Number = 0;
  Date Received;
  Date Issued;
  int Voucher = 0;  ///< 0: not issued
  int Party = 0;
  Amount Value;
  bool IsCancelled = false;
};

/// The cheque books of the firm's banks, from which a year takes its leaves.
class SampleCheques {
 public:
  explicit SampleCheques(SampleRandom& random) : random_(random) {}

  /// Goes on behind the numbers that the year before came to, by bank.
  void Begin(const std::map<int, int>& nextNumber) { nextNumber_ = nextNumber; }

  /// A new book of a bank.
  void ReceiveBook(int bank, Date day);

  /// The next leaf that is not spoilt; a book is received when none is left.
  SampleLeaf& NextLeaf(int bank, Date day);

  /// By bank, in the order of their numbers.
  const std::map<int, std::vector<SampleLeaf>>& Leaves() const { return leaves_; }
  const std::map<int, int>& NextNumbers() const { return nextNumber_; }

 private:
  SampleRandom& random_;
  std::map<int, std::vector<SampleLeaf>> leaves_;
  std::map<int, std::size_t> nextLeaf_;
  std::map<int, int> nextNumber_;
};

}  // namespace quillon
