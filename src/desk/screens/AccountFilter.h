#pragma once

#include <string>

#include "host/controls/GridModel.h"
#include "host/forms/Form.h"
#include "host/values/Amount.h"

namespace quillon {

class frmAccount;

/// The filter of a statement of account: asked for in the module's dialog, which keeps what was chosen last.
class AccountFilter {
 public:
  explicit AccountFilter(frmAccount& statement) : statement_(statement) {}

  bool IsInForce() const { return !condition_.empty(); }

  /// "Filter: Debit Entries Only"; empty while none is in force.
  std::string Words() const { return IsInForce() ? "Filter: " + words_ : ""; }

  /// Asks the user; false when he went back and all stays as it is.
  bool Ask();
  void Remove() { condition_.clear(); }

  /// What the entries come to that the filter lets through.
  struct Sums {
    Amount Debits;
    Amount Credits;
  };

  /// Hides the rows that the filter keeps out, the opening balance too.
  Sums HideRows(GridModel& grid) const;

 private:
  frmAccount& statement_;
  FormPtr dialog_;
  std::string condition_;
  std::string words_;
};

}  // namespace quillon
