#include "desk/screens/frmFilterAc.h"

namespace quillon {

void frmFilterAc::DesignControls() {
  constexpr long kTop = 1020;
  lblTitle.Caption = "   Filter Accounts";
  lblTitle.Move(0, 0, Width, 420);
  cmbGroup.Move(150, 540, Width - 300, 360);
  lstAccounts.Move(150, kTop, Width - 300, Height - kTop - 1260);
  cmdCheck.Caption = "Check All";
  cmdCheck.Move(150, Height - 1140, 1500, 390);
  cmdUnCheck.Caption = "Un-Check All";
  cmdUnCheck.Move(1800, Height - 1140, 1500, 390);
}

}  // namespace quillon
