#pragma once

#include <cstdint>
#include <string>

#include "host/controls/ControlArray.h"
#include "host/controls/Label.h"
#include "host/controls/OptionButton.h"
#include "maintenance/DateRangeFields.h"
#include "maintenance/DeletionDialog.h"

namespace quillon {

/// "Mass Deletion of Entries": removes the cash vouchers of an account in a range of dates. A voucher that a
/// document refers to stays.
class frmAcMassDeletion : public DeletionDialog {
 public:
  frmAcMassDeletion();

  DateRangeFields Dates;
  Frame Frame3;
  ControlArray<OptionButton> Option1;
  Label Label1;

 protected:
  bool Delete() override;
  CTextPlus& FirstField() override { return Dates.txpDate1; }

 private:
  struct Counts {
    std::int64_t Deleted = 0;  ///< lines selected, not rows removed
    std::int64_t Held = 0;     ///< by documents
  };

  void DesignControls();
  std::string Condition();
  Counts DeleteVouchers(CDataSet& entries);
  static void Tell(const Counts& counts);
};

}  // namespace quillon
