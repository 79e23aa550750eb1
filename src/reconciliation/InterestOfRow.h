#pragma once

#include <string>

#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

/// What interest is worked out by.
struct InterestTerms {
  Amount Rate;           ///< per cent per annum
  std::string Method;    ///< by the name that the dialog of the methods gives it
  float DayBasis = 365;  ///< days of the interest year
  int Decimals = 2;      ///< of the interest, 2 or 4
  bool IsBanks = false;  ///< the product has the bank's sign: above zero the account is overdrawn
};

/// The days of the interest year, both ends counted: of the calendar year in which the financial year starts,
/// or of the financial year itself. More than 366 become 365; a short year keeps its length.
float InterestYearDays(bool isCalendarYear, Date start, Date end);

/// The interest on a product of days and balance; its sign is the rate's. Only three methods compute any: on
/// every product, on those that the firm owes, on those that are owed to it. Throws OverflowError.
Amount InterestOfRow(Amount product, const InterestTerms& terms);

}  // namespace quillon
