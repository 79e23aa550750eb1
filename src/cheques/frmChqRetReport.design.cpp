#include "cheques/frmChqRetReport.h"

namespace quillon {

void frmChqRetReport::BuildBar() {
  BtnBar1.AddButtons(
      {"", "", "", "Preview,F8: Preview,Preview", "Print,F9: Print,Print", "Exit,Esc: Exit,Close"});
}

void frmChqRetReport::LoadScreen() {
  MStrip1.Width = Width / 2;
  lblTitle2.Move(Width / 2, MStrip1.Top, Width - Width / 2, MStrip1.Height);
  PlaceGrid(ContentTop());
  Grid.Visible = false;
}

}  // namespace quillon
