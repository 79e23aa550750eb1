#include "cheques/frmChqIssueReg2.h"

#include "host/services/host_services.h"

namespace quillon {

namespace {

constexpr int kColumns = 16;

}  // namespace

void frmChqIssueReg2::LoadScreen() {
  MStrip1.Width = Width / 2;
  lblTitle2.Move(Width / 2, MStrip1.Top, Width - Width / 2, MStrip1.Height);
  PlaceGrid(ContentTop());
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
