#include "desk/screens/frmSelectAc.h"

namespace quillon {

void frmSelectAc::DesignControls() {
  lblTitle.Caption = "   Select Account";
  lblTitle.Move(0, 0, Width, 420);
  txpAccount.Caption = "A/c Head";
  txpAccount.Move(120, 540, Width - 240, 375);
  SelGrid1.Move(120, 1020, Width - 240, Height - 1020 - 660);
  SelGrid1.Title.Caption = "Select an Account";
}

}  // namespace quillon
