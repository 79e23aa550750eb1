#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

/// A row of an account's statement or pass book, as it bears on interest.
struct Movement {
  std::string Day;          ///< as the row tells it; empty on a row that belongs to the one above
  std::int64_t Nature = 0;  ///< of the transaction
  bool IsOpening = false;   ///< named an opening balance, which only the first row can be
  Amount Debit;
  Amount Credit;
};

/// The movements of one date and what the balance after them comes to until the next date.
struct DayProduct {
  std::string Day;  ///< as the rows tell it
  Amount Debits;
  Amount Credits;
  Amount Balance;  ///< debits less credits, after this date's movements
  std::int64_t Days = 0;
  Amount Product;  ///< days times balance
};

/// Whether a movement counts for interest in a period that ends on `last`: contra entries never do, and the
/// entries that a bank or party is charged or paid with do not on the last day itself.
bool CountsForInterest(std::int64_t nature, Date day, Date last);

/// Goes through an account's movements date by date. A balance counts up to, and not including, the next
/// date; the last one counts to the end of the period, its last day included, which makes the days of a date
/// behind that end 0 or less.
class DayProducts {
 public:
  /// The period is from `first` to `last`; movements without a date at the top belong to its first day.
  DayProducts(std::vector<Movement> movements, Date first, Date last);

  /// The next date; none behind the last. Throws OverflowError, and HostError for a date that is none.
  std::optional<DayProduct> Next();

 private:
  void Take(const Movement& movement, DayProduct& group);
  void CountDays(DayProduct& group);

  std::vector<Movement> movements_;
  Date first_;
  Date last_;
  std::size_t at_ = 0;
  Amount balance_;
  std::int64_t days_ = 0;
};

}  // namespace quillon
