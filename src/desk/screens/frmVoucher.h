#pragma once

#include <memory>
#include <string>

#include "host/controls/CGridPlus.h"
#include "host/data/CDbLink.h"
#include "host/forms/ScreenForm.h"
#include "host/services/FinYear.h"

namespace quillon {

/// A voucher, to read: its lines, and the documents and cheque leaves that go with it.
class frmVoucher : public ScreenForm {
 public:
  frmVoucher();

  std::int64_t VoucherID = 0;
  int StartYear = 0;

  /// The account from whose statement the voucher was opened.
  std::int64_t AccountCode = 0;

  Label lblDocument;
  Label lblLeaf;
  CGridPlus Grid;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void Pressed(const std::string& key) override;
  GridModel* MainGrid() override { return &Grid; }

 private:
  void DesignControls();
  void SetColumns();
  void ShowParty(int row);
  void FillLines(CDbLink& db);
  void ShowDocuments(CDbLink& db);
  void ShowLeaves(CDbLink& db);
  void OpenChequeForm();
  void Modify();

  std::shared_ptr<FinYear> year_;
};

}  // namespace quillon
