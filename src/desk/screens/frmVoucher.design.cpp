#include "desk/screens/frmVoucher.h"

namespace quillon {

void frmVoucher::BuildBar() {
  BtnBar1.AddButtons({"ChqPrint,F9: Cheque Print,Cheque", "Exit,Esc : Exit,Close"});
}

void frmVoucher::DesignControls() {
  constexpr long kLine = 390;
  lblDocument.Move(0, BtnBar1.Top - 2 * kLine, Width, kLine);
  lblLeaf.Move(0, BtnBar1.Top - kLine, Width, kLine);
  Grid.Move(0, ContentTop(), Width, lblDocument.Top - ContentTop());
}

}  // namespace quillon
