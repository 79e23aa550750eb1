#include "desk/screens/frmUsers.h"

namespace quillon {

void frmUsers::DesignControls() {
  constexpr long kEdge = 240;
  constexpr long kLine = 360;
  constexpr long kLists = 1260;
  const long width = (Width - 3 * kEdge) / 2;
  lblUser.Caption = "User";
  lblUser.Move(kEdge, kEdge + 30, 600, kLine);
  cmbUser.Move(900, kEdge, 2700, kLine);
  lblLevel.Caption = "Level";
  lblLevel.Move(3780, kEdge + 30, 660, kLine);
  cmbLevel.Move(4440, kEdge, 900, kLine);
  btnNew.Caption = "F2: New";
  btnNew.Move(5580, kEdge, 1500, kLine);
  btnDelete.Caption = "F3: Delete";
  btnDelete.Move(7200, kEdge, 1560, kLine);
  lblOpen.Caption = "May open";
  lblOpen.Move(kEdge, kLists - kLine, width, kLine);
  lblPrint.Caption = "May print";
  lblPrint.Move(2 * kEdge + width, kLists - kLine, width, kLine);
  for (ListBox* const list : {&lstOpen, &lstPrint}) {
    list->CheckBoxes = true;
    list->Move(list == &lstOpen ? kEdge : 2 * kEdge + width, kLists, width, Height - kLists - 1920);
  }
  lblState.Move(kEdge, Height - 1800, Width - 2 * kEdge, 600);
  lblState.WordWrap = true;
}

}  // namespace quillon
