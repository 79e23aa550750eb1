#pragma once

#include "host/data/CDataSet.h"
#include "host/forms/ListScreen.h"

namespace quillon {

/// "Cheque Returned Report": the other sides of a bank account's vouchers whose cheques came back, in a
/// period.
class frmChqRetReport : public ListScreen, public AccountPeriod {
 public:
  frmChqRetReport();

  /// Reads the vouchers anew.
  void FillGrid();

  Label lblTitle2;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void Print(bool print) override;
  void OpenRow(int row) override;
  long AccountOfRow(int row) const override;

 private:
  void SetupGrid();
  void AddLines();
};

}  // namespace quillon
