#pragma once

#include <string>

#include "entry/StatementFilter.h"
#include "host/values/Date.h"

namespace quillon {

/// "Filter A/c Statement" for a caller that has the rows before it: the choices as they are, and a period.
class frmAcFilter2 : public StatementFilter {
 public:
  frmAcFilter2();

  /// Given in and read back; empty is no limit.
  Date Date1;
  Date Date2;

  std::string FilterTrn;   ///< "Dr", "Cr" or empty
  std::string FilterBook;  ///< the ticked books between marks, "*A*B*"; empty when all are ticked
  std::string FilterNar;

  CTextPlus txpDate1;
  CTextPlus txpDate2;

  /// Whether nothing but the period was chosen.
  bool IsOpen() const;

 protected:
  Control& FirstField() override { return txpDate1; }
  void LoadDialog() override;
  bool Confirm() override;
};

}  // namespace quillon
