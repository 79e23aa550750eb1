#pragma once

#include <string>
#include <vector>

#include "host/controls/CheckBox.h"
#include "host/controls/CommandButton.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Label.h"
#include "host/controls/MSHFlexGrid.h"
#include "host/forms/Form.h"

namespace quillon {

/// "Similar / Duplicate Voucher Entries": shows the entries that resemble a voucher which is about to be
/// saved, and lets the user decide.
class frmSimilarVoucher : public Form {
 public:
  frmSimilarVoucher();

  /// Until the user chose to go on.
  bool Cancelled = true;

  /// The user went on and wants no more warnings for this account.
  bool DontShow = false;

  // Set before the first entry is added.
  std::string dTrnType;
  std::int32_t CurVoucherID = 0;  ///< the voucher that is being changed; 0 for a new one

  Label lblTitle;
  Label lblAcHead;
  MSHFlexGrid Grid;
  CheckBox Check1;
  ControlArray<CommandButton> Command1;

  /// Adds a row: date, book, voucher number, narration, amount.
  void AddEntry(const std::vector<std::string>& entries);

 protected:
  void OnLoad() override;
  void OnActivate() override;
  void OnKeyDown(KeyEvent& key) override;
  void OnKeyPress(int& character) override { MoveOnAtEnter(character); }

 private:
  void DesignControls();
  void SetColumns();
  void Leave(bool goesOn);

  int count_ = 0;
};

}  // namespace quillon
