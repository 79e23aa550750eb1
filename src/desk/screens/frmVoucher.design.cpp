#include "desk/screens/frmVoucher.h"

namespace quillon {

void frmVoucher::BuildBar() {
  BtnBar1.AddButtons({"Modify,F3: Modify,Modify", "F4", "F5", "F6", "F7", "F8",
                      "ChqPrint,F9: Cheque Print,Cheque", "Exit,Esc : Exit,Close"});
  BtnBar1.HideButtons({"F4", "F5", "F6", "F7", "F8"});
}

void frmVoucher::DesignControls() {
  constexpr long kLine = 390;
  lblDocument.Move(0, BtnBar1.Top - 2 * kLine, Width, kLine);
  lblLeaf.Move(0, BtnBar1.Top - kLine, Width, kLine);
  Grid.Move(0, ContentTop(), Width, lblDocument.Top - ContentTop());
}

}  // namespace quillon
