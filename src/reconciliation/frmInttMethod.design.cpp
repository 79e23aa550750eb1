#include "reconciliation/frmInttMethod.h"

#include "host/forms/Runtime.h"

namespace quillon {

void frmInttMethod::DesignControls() {
  Caption = "Interest Options";
  Width = 6300;
  Height = 2550;
  Left = (gRuntime->ScreenWidth() - Width) / 2;
  Top = (gRuntime->ScreenHeight() - Height) / 2;

  Frame1.Move(150, 120, 6000, 1500);
  Label1.Caption = "Method of Interest";
  Label1.Move(240, 300, 1800, 330);
  cmbInttMethod.Move(2100, 270, 3660, 360);
  txpInttRate.Caption = "Rate of Interest ";
  txpInttRate.LabelWidth = 1860;
  txpInttRate.Move(240, 840, 3600, 360);
  txpInttRate.TextNumericOnly = false;

  btnOKCancel(0).Caption = "F7: OK";
  btnOKCancel(0).Move(3000, 1800, 1500, 420);
  btnOKCancel(1).Caption = "Esc: Cancel";
  btnOKCancel(1).Move(4650, 1800, 1500, 420);
}

}  // namespace quillon
