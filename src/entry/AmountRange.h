#pragma once

#include <string>

#include "host/values/Amount.h"

namespace quillon {

/// From and to which amount; a bound of zero is open.
struct AmountRange {
  Amount From;
  Amount To;

  bool IsOpen() const { return From.IsZero() && To.IsZero(); }
  bool Contains(Amount amount) const;

  /// "Dr. Amt. Between 5.00 and 10.00", "Dr. Amt. >= 5.00"; empty for an open range.
  std::string Words(const std::string& side) const;

  /// Narrows one side's entries and lets the other side's through: a piece of SQL on FAData's alias a that
  /// begins with " and ". Empty for an open range.
  std::string DebitCondition() const;
  std::string CreditCondition() const;

 private:
  std::string Bounds(const std::string& amount) const;
};

}  // namespace quillon
