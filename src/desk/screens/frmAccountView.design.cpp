#include "desk/screens/frmAccountView.h"

#include "host/services/IStd.h"

namespace quillon {

void frmAccountView::DesignControls() { Grid.Move(0, 0, Width, Height - 720); }

void frmAccountView::SetColumns() {
  Grid.Cols = 2;
  gStd->SetupGrid(Grid);
  gStd->SetGridColumn(Grid, 0, "", 0.25, kAlignLeft);
  gStd->SetGridColumn(Grid, 1, "", 0.7, kAlignLeft);
}

}  // namespace quillon
