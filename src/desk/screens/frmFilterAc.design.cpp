#include "desk/screens/frmFilterAc.h"

namespace quillon {

void frmFilterAc::DesignControls() {
  lblTitle.Caption = "   Filter Accounts";
  lblTitle.Move(0, 0, Width, 420);
  lstAccounts.Move(150, 540, Width - 300, Height - 540 - 1260);
  cmdCheck.Caption = "Check All";
  cmdCheck.Move(150, Height - 1140, 1500, 390);
  cmdUnCheck.Caption = "Un-Check All";
  cmdUnCheck.Move(1800, Height - 1140, 1500, 390);
}

}  // namespace quillon
