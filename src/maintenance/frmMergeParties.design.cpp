#include "maintenance/frmMergeParties.h"

#include "host/forms/GridColumns.h"
#include "host/services/IStd.h"
#include "maintenance/PartyColumns.h"

namespace quillon {

namespace col = party_col;

void frmMergeParties::DesignControls() {
  constexpr long kEdge = 150;
  constexpr long kLine = 360;
  constexpr long kButton = 420;
  HelpContext = 8;
  const long buttons = btnOKCancel(0).Top;
  const long width = Width - 2 * kEdge;
  lblWarning.Move(kEdge, buttons - kLine - kEdge, width, kLine);
  lblWarning.ForeColor = 0x0000C0;
  chkAllYears.Caption = "Merge Parties in All Years";
  chkAllYears.Move(kEdge, lblWarning.Top - kLine, width, kLine);
  Grid.Move(kEdge, kEdge, width, chkAllYears.Top - 2 * kEdge);
  btnSearchDuplicate.Caption = "Search Duplicate";
  btnSearchDuplicate.Move(kEdge, buttons, 2400, kButton);
  SelGrid1.Visible = false;
}

void frmMergeParties::SetColumns() {
  Grid.Rows = 2;
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  Grid.Title = "Enter List of Parties to Merge";
  SetColumnsInTwips(Grid, {
                              {col::kSerial, "S.N", 400, kAlignCentre},
                              {col::kHead, "Original A/c Head", 3000},
                              {col::kStation, "Station", 1000},
                              {col::kDuplicateHead, "Duplicate A/c Head\n(will be deleted)", 3000},
                              {col::kDuplicateStation, "Station", 1000},
                          });
  Grid.SetRowHeight(0, 600);
}

}  // namespace quillon
