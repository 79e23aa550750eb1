#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/data/CDbLink.h"
#include "host/values/Variant.h"

namespace quillon {

struct BankPayment;

/// A leaf whose cheque was sent to a printer.
struct OutgoingLeaf {
  std::int64_t Leaf = 0;  ///< its ID
  std::int64_t Bank = 0;
  std::int64_t Number = 0;
  std::int64_t Voucher = 0;
  std::string Job{};  ///< its name in the printer's queue
};

/// The narration with the cheque's number, where it has none and there is room: before a payee that it names
/// behind "::".
std::string NarrationWithCheque(const std::string& narration, std::int64_t number);

/// A cheque number as people read it: at least six digits.
std::string LeafText(std::int64_t number);

/// The leaves of cheques that are printed without a look at each: sent, then recorded for their vouchers or
/// free again. What a program that was killed has left going out stays so until the user is asked.
class OutgoingLeaves {
 public:
  explicit OutgoingLeaves(CDbLink& year) : year_(year) {}

  /// Why a cheque cannot be printed on the bank's leaf of that number, in words; empty when it can.
  std::string WhyNot(std::int64_t bank, std::int64_t number) const;

  /// Marks the leaf as going out for a voucher. It must be one that WhyNot says nothing against.
  OutgoingLeaf Send(std::int64_t bank, std::int64_t number, std::int64_t voucher);

  /// Keeps the name that the printer's queue gave the cheque.
  void NoteJob(OutgoingLeaf& sent, const std::string& job);

  /// What taking a leaf back from its voucher needs.
  struct Issue {
    OutgoingLeaf Sent;
    Variant NarrationBefore;
    std::int64_t NarrationOwn = 0;  ///< the row that got the cheque's number; 0 where it had one
  };

  /// The cheque is printed: the leaf belongs to its voucher, and the voucher's narration tells its number. A
  /// leaf whose voucher is gone meanwhile is cancelled, and nothing is answered. Throws HostError when
  /// another has used the leaf.
  std::optional<Issue> Record(const OutgoingLeaf& sent);

  /// The cheque is not printed: the leaf can be used again.
  void Free(const OutgoingLeaf& sent);

  /// The printed leaf is spoilt: it is cancelled, and the voucher stands as before it had it.
  void Spoil(const Issue& issue);

  /// Asks "Was cheque … printed?" and does what is answered; nothing when it is put off. A cheque that is not
  /// printed must not come out later, so that it is taken out of its queue. `issue` takes what Record gave.
  void Ask(const OutgoingLeaf& sent, std::optional<Issue>& issue);

  /// Asks so for each leaf that no program at work has sent.
  void AskAll();

 private:
  std::vector<OutgoingLeaf> Left() const;
  Variant NumberNarration(const BankPayment& payment, Issue& issue);

  CDbLink& year_;
};

}  // namespace quillon
