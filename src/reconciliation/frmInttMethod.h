#pragma once

#include <string>

#include "host/controls/CButton.h"
#include "host/controls/CTextPlus.h"
#include "host/controls/ComboBox.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Frame.h"
#include "host/controls/Label.h"
#include "host/forms/Form.h"

namespace quillon {

/// "Interest Options": asks the rate and the method before interest is worked out.
class frmInttMethod : public Form {
 public:
  frmInttMethod();

  /// Per cent per annum; given in and read back.
  Amount InttRate;
  std::string InttMethod;

  /// Offers "Business Interest" too.
  bool ShowBusMethod = false;

  /// True from Load until the user confirms.
  bool Cancelled = true;

  quillon::Frame Frame1;
  Label Label1;
  ComboBox cmbInttMethod;
  CTextPlus txpInttRate;
  ControlArray<CButton> btnOKCancel;

 protected:
  void OnLoad() override;
  void OnKeyDown(KeyEvent& key) override;
  void OnKeyPress(int& character) override;

 private:
  void DesignControls();
  void FillMethods();
  void cmbInttMethod_Click();
  void Confirm();
};

}  // namespace quillon
