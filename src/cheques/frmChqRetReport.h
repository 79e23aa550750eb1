#pragma once

#include "host/controls/CGridPlus.h"
#include "host/data/CDataSet.h"
#include "host/forms/ScreenForm.h"

namespace quillon {

/// "Cheque Returned Report": the other sides of a bank account's vouchers whose cheques came back, in a
/// period.
class frmChqRetReport : public ScreenForm {
 public:
  frmChqRetReport();

  /// The bank account and the period, set before showing.
  long AccountCode = 0;
  Date Date1;
  Date Date2;

  /// Reads the vouchers anew.
  void FillGrid();

  Label lblTitle2;
  CGridPlus Grid;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void ButtonPressed(int index) override;
  GridModel* MainGrid() override { return &Grid; }

 private:
  void SetupGrid();
  void AddLines();
  void AddTotals(Amount debits, Amount credits);
  void Grid_KeyDown(KeyEvent& key);
  void OpenVoucher();
};

}  // namespace quillon
