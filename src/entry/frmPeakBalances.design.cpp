#include "entry/frmPeakBalances.h"

#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr long kEdge = 150;
constexpr long kLine = 360;
constexpr long kFrameHeight = 1320;

}  // namespace

void frmPeakBalances::DesignControls() {
  Caption = "Peak Balances";
  Width = 7500;
  for (auto& [group, frame] : Frame1) {
    frame->Move(kEdge, kEdge + group * (kFrameHeight + 90), Width - 2 * kEdge, kFrameHeight);
  }
  for (int row = 0; row < Label1.Count(); ++row) PlaceRow(row);
  Command1.Caption = "Esc: Close";
  Command1.IsCancel = true;
  Command1.Move(Width - kEdge - 1500, Frame1(1).Top + kFrameHeight + 120, 1500, 420);
  Height = Command1.Top + Command1.Height + kEdge;
  Left = (gRuntime->ScreenWidth() - Width) / 2;
  Top = (gRuntime->ScreenHeight() - Height) / 2;
}

void frmPeakBalances::PlaceRow(int row) {
  const char* const captions[] = {"Maximum Debit", "Minimum Debit", "Maximum Credit", "Minimum Credit"};
  const long top = 240 + row % 2 * 510L;
  Label1(row).Caption = captions[row];
  Label1(row).Move(180, top, 1740, kLine);
  Text1(row).Text = "0.00";
  Text1(row).Move(1980, top, 1980, kLine);
  Label2(row).Caption = "As on Date";
  Label2(row).Move(4140, top, 1140, kLine);
  Text2(row).Move(5340, top, 1680, kLine);
  for (TextBox* const box : {&Text1(row), &Text2(row)}) box->Locked = true;
}

}  // namespace quillon
