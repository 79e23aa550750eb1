#pragma once

#include "host/forms/ListScreen.h"

namespace quillon {

/// "Cheque Layouts": the bank accounts and whether a layout of their cheques is kept. A layout is opened
/// without a voucher, and copied to another account.
class frmChequeLayouts : public ListScreen {
 public:
  frmChequeLayouts();

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override { FillGrid(); }
  void ShownAgain() override { FillGrid(); }
  void Pressed(const std::string& key) override;
  void OpenRow(int row) override;
  long AccountOfRow(int row) const override;

 private:
  void FillGrid();
  void Export(int row);
};

}  // namespace quillon
