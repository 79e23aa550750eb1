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

struct Column {
  int place;
  const char* title;
  int width;  // twips
  int alignment;
};

constexpr int kColumns = 16;
constexpr int kOwnAlignment = -1;
constexpr Column kTitled[] = {
    {4, "Party", 2500, kOwnAlignment},    {5, "Bill No.", 1000, kOwnAlignment},
    {6, "Vch.Date", 1100, kOwnAlignment}, {7, "Bill Amt.", 1000, kAlignRight},
    {8, "R.D.", 1000, kAlignRight},       {9, "C.D. %", 800, kAlignRight},
    {10, "C.D.", 1000, kAlignRight},      {11, "B.C.", 1000, kAlignRight},
    {13, "Net Amt.", 1000, kAlignRight},
};

}  // namespace

frmChqIssueReg2::frmChqIssueReg2()
    : ScreenForm(kScreen, Origin::Module), lblTitle2(*this, "lblTitle2"), Grid(*this, "Grid") {
  Caption = "Cheque Issue Register";
  lblTitle2.Caption = "Period";
  Method("SetupGrid", [this](const Array&) {
    SetupGrid();
    return Variant();
  });
}

void frmChqIssueReg2::LoadScreen() {
  MStrip1.Width = Width / 2;
  lblTitle2.Move(Width / 2, MStrip1.Top, Width - Width / 2, MStrip1.Height);
  Grid.Move(0, ContentTop(), Width, ContentBottom() - ContentTop());
}

void frmChqIssueReg2::FirstShow() {
  const RedrawHold hold(Grid);
  Grid.Clear();
}

void frmChqIssueReg2::SetupGrid() {
  Grid.Cols = kColumns;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  for (const Column& column : kTitled) {
    gStd->SetGridColumn(Grid, column.place, column.title, column.width, column.alignment);
  }
}

}  // namespace quillon
