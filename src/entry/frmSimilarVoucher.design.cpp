#include "entry/frmSimilarVoucher.h"

#include "host/forms/Runtime.h"

namespace quillon {

void frmSimilarVoucher::DesignControls() {
  constexpr long kEdge = 150;
  constexpr long kTitle = 420;
  constexpr long kLine = 360;
  constexpr int kCentre = 2;
  Caption = "Similar / Duplicate Voucher Entries";
  Width = 11400;
  Height = 6000;
  Left = (gRuntime->ScreenWidth() - Width) / 2;
  Top = (gRuntime->ScreenHeight() - Height) / 2;
  lblTitle.Caption = "List of Similar Entries";
  lblTitle.Alignment = kCentre;
  lblTitle.Move(0, 0, Width, kTitle);
  lblAcHead.Caption = "Head of A/c";
  lblAcHead.Move(kEdge, kTitle + 60, Width - 2 * kEdge, kLine);
  const long buttons = Height - 420 - kEdge;
  const long check = buttons - kLine - 120;
  const long top = lblAcHead.Top + kLine + 60;
  Grid.Move(kEdge, top, Width - 2 * kEdge, check - top - 120);
  Check1.Caption = "Dont Warn again for this A/c";
  Check1.Move(kEdge, check, 4500, kLine);
  constexpr long kButton = 2700;
  Command1(0).Caption = "Save Voucher";
  Command1(0).Move(Width - 2 * (kButton + kEdge), buttons, kButton, 420);
  Command1(1).Caption = "Do not Save Voucher";
  Command1(1).Move(Width - kButton - kEdge, buttons, kButton, 420);
}

}  // namespace quillon
