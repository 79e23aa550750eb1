#pragma once

#include <string>

#include "host/values/Date.h"

namespace quillon {

/// The account and the period that a screen is opened on; the caller sets them as public members.
struct AccountPeriod {
  long AccountCode = 0;
  Date Date1;
  Date Date2;

  /// "Period: 01/04/2024 to 31/03/2025".
  std::string PeriodText() const {
    return "Period: " + Date1.Format("dd/MM/yyyy") + " to " + Date2.Format("dd/MM/yyyy");
  }
};

}  // namespace quillon
