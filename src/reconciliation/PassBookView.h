#pragma once

#include "reconciliation/WorkbenchView.h"

namespace quillon {

/// The account as the bank's own book would show it: what the bank has cleared, in the order of clearing,
/// with debits and credits swapped.
class PassBookView : public WorkbenchView {
 public:
  PassBookView(WorkbenchAccount& account, CGridPlus& grid);

  /// Reads the pass book of the period anew.
  void Update();

  /// Opens the row's voucher.
  void ZoomRow() override;

 protected:
  Sided SidedOf(int row) const override;

 private:
  void SetColumns();
  void Fill();
  int AddOpening(Amount opening);
  void AddEntry(CDataSet& entry, int row);
  void AddBalances();
};

}  // namespace quillon
