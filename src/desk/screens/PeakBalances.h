#pragma once

#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

class frmAccount;

/// A balance without its side, and the first day on which it stood; zero and no date for none.
struct Peak {
  Amount Balance;
  Date Day;
};

/// The largest and smallest debit and credit balances at the end of days, which are given in their order.
class PeakBalances {
 public:
  /// A debit is above zero; a balance of zero is on neither side.
  void Take(Date day, Amount balance);

  const Peak& MostDebit() const { return debit_.Most; }
  const Peak& LeastDebit() const { return debit_.Least; }
  const Peak& MostCredit() const { return credit_.Most; }
  const Peak& LeastCredit() const { return credit_.Least; }

 private:
  struct OneSide {
    Peak Most;
    Peak Least;
  };

  OneSide debit_;
  OneSide credit_;
};

/// Shows those of the statement's account in its period: of the days that have an entry, with what the
/// account came to before.
void ShowPeakBalances(frmAccount& statement);

}  // namespace quillon
