#pragma once

#include <vector>

#include "host/controls/ComboBox.h"
#include "host/controls/Label.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// "Parameters": what a firm chooses once, and how its user's reports go to a printer.
class frmParameters : public DialogForm {
 public:
  frmParameters();

  ControlArray<Label> lblChoice;
  ControlArray<ComboBox> cmbChoice;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;

 private:
  void DesignControls();

  std::vector<int> shown_;  // what was chosen when the dialog came up
};

}  // namespace quillon
