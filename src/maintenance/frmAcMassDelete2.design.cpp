#include "maintenance/frmAcMassDelete2.h"

namespace quillon {

void frmAcMassDelete2::DesignControls() {
  HelpContext = 6;
  Frame2.Caption = "Period";
  Frame2.Move(Frame1.Left, Frame1.Top + Frame1.Height + 90, Frame1.Width, 870);
  txpDate1.Caption = "Up to";
  txpDate1.LabelWidth = 720;
  txpDate1.Move(180, 390, 2880, 360);
  Label2.Caption = " Balance, if any, shall be kept as pervious balance.";
  Label2.Move(Frame1.Left, Frame2.Top + Frame2.Height + 90, Frame1.Width, 360);
}

}  // namespace quillon
