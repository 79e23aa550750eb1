#include "cheques/frmChqIssueReg2.h"

#include "host/controls/RedrawHold.h"
#include "host/services/host_services.h"

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

constexpr int kColumns = 16;

}  // namespace

frmChqIssueReg2::frmChqIssueReg2() : ListScreen(kScreen, Origin::Module), lblTitle2(*this, "lblTitle2") {
  Caption = "Cheque Issue Register";
  lblTitle2.Caption = "Period";
  Routine("SetupGrid", &frmChqIssueReg2::SetupGrid);
}

void frmChqIssueReg2::LoadScreen() {
  MStrip1.Width = Width / 2;
  lblTitle2.Move(Width / 2, MStrip1.Top, Width - Width / 2, MStrip1.Height);
  PlaceGrid(ContentTop());
}

void frmChqIssueReg2::FirstShow() {
  const RedrawHold hold(Grid);
  Grid.Clear();
}

void frmChqIssueReg2::SetupGrid() {
  Grid.Cols = kColumns;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  SetColumnsInTwips(Grid, {
                              {4, "Party", 2500},
                              {5, "Bill No.", 1000},
                              {6, "Vch.Date", 1100},
                              {7, "Bill Amt.", 1000, kAlignRight},
                              {8, "R.D.", 1000, kAlignRight},
                              {9, "C.D. %", 800, kAlignRight},
                              {10, "C.D.", 1000, kAlignRight},
                              {11, "B.C.", 1000, kAlignRight},
                              {13, "Net Amt.", 1000, kAlignRight},
                          });
}

}  // namespace quillon
