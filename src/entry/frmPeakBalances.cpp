#include "entry/frmPeakBalances.h"

#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr long kStockBackColor = 9598313;
constexpr long kWhite = 16777215;
constexpr long kUnderFrame = 100;
constexpr long kUnderButton = 200;

}  // namespace

frmPeakBalances::frmPeakBalances()
    : Form("frmPeakBalances"),
      Frame1(*this, "Frame1", {0, 1}),
      Label1("Label1", {{&Frame1(0), {0, 1}}, {&Frame1(1), {2, 3}}}),
      Text1("Text1", {{&Frame1(0), {0, 1}}, {&Frame1(1), {2, 3}}}),
      Label2("Label2", {{&Frame1(0), {0, 1}}, {&Frame1(1), {2, 3}}}),
      Text2("Text2", {{&Frame1(0), {0, 1}}, {&Frame1(1), {2, 3}}}),
      Command1(*this, "Command1") {
  Member("StkMode", StkMode);
  DesignControls();
  Command1.Click = [this] { gRuntime->Unload(*this); };
}

void frmPeakBalances::OnLoad() {
  if (!StkMode) return;
  Frame1(1).Visible = false;
  Label1(0).Caption = "Maximum Balance";
  Label1(1).Caption = "Minimum Balance";
  Command1.Top = Frame1(0).Top + Frame1(0).Height + kUnderFrame;
  Height = Command1.Top + Command1.Height + kUnderButton;
  PaintAlike();
}

void frmPeakBalances::PaintAlike() {
  BackColor = kStockBackColor;
  ForeColor = kWhite;
  for (Control* const control : Controls()) {
    const bool isPainted =
        dynamic_cast<Label*>(control) != nullptr || dynamic_cast<Frame*>(control) != nullptr;
    if (!isPainted) continue;
    control->BackColor = BackColor();
    control->ForeColor = ForeColor();
  }
}

}  // namespace quillon
