#pragma once

#include "host/controls/CButton.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Frame.h"
#include "host/controls/Label.h"
#include "host/controls/TextBox.h"
#include "host/forms/Form.h"

namespace quillon {

/// "Peak Balances": shows the largest and smallest balances that its caller writes into its fields.
class frmPeakBalances : public Form {
 public:
  frmPeakBalances();

  /// The balances of a stock item, which know no debit and credit.
  bool StkMode = false;

  // Rows 0 and 1 are the debits, 2 and 3 the credits.
  ControlArray<Frame> Frame1;
  ControlArray<Label> Label1;
  ControlArray<TextBox> Text1;  ///< the balance
  ControlArray<Label> Label2;
  ControlArray<TextBox> Text2;  ///< its date
  CButton Command1;

 protected:
  void OnLoad() override;
  void OnActivate() override { Command1.SetFocus(); }
  void OnKeyPress(int& character) override { MoveOnAtEnter(character); }

 private:
  void DesignControls();
  void PlaceRow(int row);
  void PaintAlike();
};

}  // namespace quillon
