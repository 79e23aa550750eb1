#pragma once

#include <string>

#include "entry/StatementFilter.h"

namespace quillon {

/// "Filter A/c Statement" for a caller that asks the database: what is chosen becomes a condition.
class frmAcFilter : public StatementFilter {
 public:
  frmAcFilter();

  /// Asks for the ranges of amounts alone; set before the form is loaded.
  bool AmtRangeOnly = false;

  /// Each part begins with " and "; on the alias a of a query of FAData with its narrations. Empty when
  /// nothing is kept out.
  std::string FilterCnd;

 protected:
  void LoadDialog() override;
  bool Confirm() override;

 private:
  void ShrinkToAmounts();
  void TakeEntries();
};

}  // namespace quillon
