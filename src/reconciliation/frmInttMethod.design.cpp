#include "reconciliation/frmInttMethod.h"

namespace quillon {

void frmInttMethod::DesignControls() {
  Frame1.Move(150, 120, 6000, 1500);
  Label1.Caption = "Method of Interest";
  Label1.Move(240, 300, 1800, 330);
  cmbInttMethod.Move(2100, 270, 3660, 360);
  txpInttRate.Caption = "Rate of Interest ";
  txpInttRate.LabelWidth = 1860;
  txpInttRate.Move(240, 840, 3600, 360);
  txpInttRate.TextNumericOnly = false;
}

}  // namespace quillon
