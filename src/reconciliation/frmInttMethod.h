#pragma once

#include <string>

#include "host/controls/CTextPlus.h"
#include "host/controls/ComboBox.h"
#include "host/controls/Frame.h"
#include "host/controls/Label.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// "Interest Options": asks the rate and the method before interest is worked out.
class frmInttMethod : public DialogForm {
 public:
  frmInttMethod();

  /// Per cent per annum; given in and read back.
  Amount InttRate;
  std::string InttMethod;

  /// Offers "Business Interest" too.
  bool ShowBusMethod = false;

  quillon::Frame Frame1;
  Label Label1;
  ComboBox cmbInttMethod;
  CTextPlus txpInttRate;

 protected:
  void LoadDialog() override;
  bool Confirm() override;

 private:
  void DesignControls();
  void FillMethods();
  void cmbInttMethod_Click();
};

}  // namespace quillon
