#pragma once

#include <string>

#include "host/controls/CTextPlus.h"
#include "host/data/CNameValues.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// "Label Setup": the values of a label sheet, each in the field of its name.
class frmAddLabelSetup : public DialogForm {
 public:
  frmAddLabelSetup();

  CNameValues Config;

  ControlArray<CTextPlus> txp1;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;

 private:
  void DesignControls();
};

}  // namespace quillon
