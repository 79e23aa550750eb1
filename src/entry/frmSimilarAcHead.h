#pragma once

#include <string>

#include "host/controls/CButton.h"
#include "host/controls/Label.h"
#include "host/controls/MSHFlexGrid.h"
#include "host/forms/Form.h"

namespace quillon {

/// "List of Similar Accounts": the masters whose pressed head begins like the one that is being entered.
class frmSimilarAcHead : public Form {
 public:
  frmSimilarAcHead();

  // Set before the form is loaded.
  bool StkMode = false;  ///< looks among the items and not among the accounts
  std::string mhd;       ///< the pressed head, letters and digits alone

  Label lblMsg;
  MSHFlexGrid Grid;
  CButton Command1;

 protected:
  void OnLoad() override;
  void OnKeyPress(int& character) override { MoveOnAtEnter(character); }

 private:
  void DesignControls();
  void Fill();
  void SetColumns();
  std::string Query() const;
};

}  // namespace quillon
