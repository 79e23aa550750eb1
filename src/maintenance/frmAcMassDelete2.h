#pragma once

#include <cstdint>

#include "host/controls/Label.h"
#include "host/values/Amount.h"
#include "maintenance/DeletionDialog.h"

namespace quillon {

/// "Mass Deletion of Vouchers": clears the history of an account up to a date, whole vouchers of every book
/// with their documents. What they came to for this account is posted back as one voucher.
class frmAcMassDelete2 : public DeletionDialog {
 public:
  frmAcMassDelete2();

  Frame Frame2;
  CTextPlus txpDate1;
  Label Label2;

 protected:
  bool Delete() override;
  CTextPlus& FirstField() override { return txpDate1; }

 private:
  struct Counts {
    std::int64_t Vouchers = 0;  ///< lines of the account, not vouchers
    std::int64_t Documents = 0;
  };

  void DesignControls();
  bool Check();

  /// Answers what the deleted lines came to.
  Amount DeleteVouchers(CDataSet& entries, Counts& counts);
  static bool DeleteDocument(std::int64_t voucher);
  void PostBalance(Amount balance);
};

}  // namespace quillon
