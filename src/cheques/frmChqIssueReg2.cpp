#include "cheques/frmChqIssueReg2.h"

#include "host/controls/RedrawHold.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmChqIssueReg2",
    .caption = "   Cheque Issue Register",
    .titleSuffix = "",
    .rightKey = "",
    .registerTitle = "",
    .iconKey = "",
};

}  // namespace

frmChqIssueReg2::frmChqIssueReg2() : ListScreen(kScreen, Origin::Module), lblTitle2(*this, "lblTitle2") {
  Caption = "Cheque Issue Register";
  lblTitle2.Caption = "Period";
  Routine("SetupGrid", &frmChqIssueReg2::SetupGrid);
}

void frmChqIssueReg2::FirstShow() {
  const RedrawHold hold(Grid);
  Grid.Clear();
}

}  // namespace quillon
