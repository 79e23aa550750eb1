#pragma once

#include "host/controls/CTextPlus.h"
#include "host/controls/ComboBox.h"
#include "host/controls/CommandButton.h"
#include "host/controls/Label.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// "Printer": measures a printer by a proof sheet, so that every page that goes to it lands where it was
/// asked for.
class frmPrinter : public DialogForm {
 public:
  frmPrinter();

  Label lblPrinter;
  ComboBox cmbPrinter;
  CommandButton btnProof;
  Label lblMeasure;
  ControlArray<CTextPlus> txpMeasure;
  ControlArray<Label> lblUnit;
  Label lblState;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;

 private:
  void DesignControls();
  void ShowPrinter();
  void PrintProof();
};

}  // namespace quillon
