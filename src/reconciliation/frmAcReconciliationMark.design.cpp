#include "reconciliation/frmAcReconciliationMark.h"

#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr long kGap = 30;
constexpr long kLine = 360;
constexpr long kInputsHeight = 480;
constexpr long kDaysWidth = 2400;
constexpr long kDaysLabelWidth = 1500;
constexpr long kWideScreen = 900 * Runtime::kTwipsPerPixel;
constexpr double kWideFontSize = 8;
constexpr double kFontSize = 9.75;

}  // namespace

void frmAcReconciliationMark::BuildBar() {
  BtnBar1.AddButtons({"RemoveMark,F3: Remove Mark,Delete", "F4", "F5", "Clear,F6: Clear Page,New", "F7",
                      "Preview,F8: Preview", "Print,F9: Print", "Exit,Esc: Exit"});
  BtnBar1.HideButtons({"F4", "F5", "F7"});
}

void frmAcReconciliationMark::DesignControls() {
  const long inputs = ContentTop() + kGap;
  MStrip2.Move(MStrip1.Left, MStrip1.Top, MStrip1.Width, MStrip1.Height);
  MStrip1.Top = BtnBar1.Top - MStrip1.Height - kGap;  // the party of the row below, as on the workbench
  picInputs.Move(0, inputs, Width, kInputsHeight);
  txpDays.Caption = "Search Days";
  txpDays.LabelWidth = kDaysLabelWidth;
  txpDays.Move(60, (kInputsHeight - kLine) / 2, kDaysWidth, kLine);
  txpDays.TextNumericOnly = true;
  txpDays.Text = "3";
  const long top = picInputs.Top + picInputs.Height + kGap;
  Grid.Move(0, top, Width, MStrip1.Top - top - kGap);
  const bool wide = gRuntime->ScreenWidth() > kWideScreen;
  Grid.Font = quillon::Font{"Tahoma", wide ? kWideFontSize : kFontSize, false, false, false};
}

}  // namespace quillon
