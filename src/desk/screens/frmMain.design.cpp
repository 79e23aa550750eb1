#include "desk/screens/frmMain.h"

namespace quillon {

frmMain::frmMain() : Form("frmMain", Origin::Desk), lblTitle(*this, "lblTitle") {
  Caption = "Quillon";
  lblTitle.Caption = "   Quillon";
}

}  // namespace quillon
