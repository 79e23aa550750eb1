#include "entry/frmSimilarAcHead.h"

#include "host/forms/Runtime.h"

namespace quillon {

void frmSimilarAcHead::DesignControls() {
  constexpr long kEdge = 150;
  Caption = "List of Similar Accounts";
  Width = 8400;
  Height = 5400;
  Left = (gRuntime->ScreenWidth() - Width) / 2;
  Top = (gRuntime->ScreenHeight() - Height) / 2;
  lblMsg.Caption = "Be Careful, following simiar A/c Heads already exist in Master: -";
  lblMsg.Move(kEdge, 90, Width - 2 * kEdge, 360);
  const long button = Height - 420 - kEdge;
  Grid.Move(kEdge, 540, Width - 2 * kEdge, button - 540 - 120);
  Command1.Caption = "Esc: Close";
  Command1.IsCancel = true;
  Command1.Move(Width - 1500 - kEdge, button, 1500, 420);
}

}  // namespace quillon
