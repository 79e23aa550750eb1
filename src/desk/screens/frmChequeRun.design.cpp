#include "desk/screens/frmChequeRun.h"

#include "host/controls/Colors.h"

namespace quillon {

namespace {

constexpr long kGap = 60;
constexpr long kEdge = 180;
constexpr long kLine = 360;
constexpr long kInputsHeight = 480;
constexpr long kPanelWidth = 7800;
constexpr long kListHeight = 1500;
constexpr long kButtonWidth = 1500;

}  // namespace

void frmChequeRun::BuildBar() {
  BtnBar1.AddButtons({"Mark,F2: Mark,Modify", "All,F3: Mark All,List", "Voucher,F4: Voucher,Voucher",
                      "Leaf,F5: First Leaf,Cheque", "F6", "F7", "F8", "Print,F9: Print,Print",
                      "Exit,Esc: Exit,Close"});
  BtnBar1.HideButtons({"F6", "F7", "F8"});
}

void frmChequeRun::DesignControls() {
  MStrip1.Width = Width / 2;
  lblTitle2.Move(Width / 2, MStrip1.Top, Width / 2, MStrip1.Height);
  picInputs.Move(0, ContentTop() + kGap, Width, kInputsHeight);
  const auto place = [](CTextPlus& field, const char* caption, long left, long label, long width) {
    field.Caption = caption;
    field.LabelWidth = label;
    field.Move(left, (kInputsHeight - kLine) / 2, label + width, kLine);
    field.TextNumericOnly = true;
  };
  place(txpFirst, "First leaf in the tray", kGap, 2100, 1500);
  place(txpEvery, "Wait after every", 4500, 1600, 600);
  txpEvery.Text = "1";
  lblEvery.Caption = "cheques";
  lblEvery.Move(txpEvery.Left + txpEvery.Width + kGap, txpEvery.Top, 1200, kLine);
  PlaceGrid(picInputs.Top + picInputs.Height + kGap);
  picRun.Move((Width - kPanelWidth) / 2, Height / 4, kPanelWidth, kListHeight + 2 * kLine + 4 * kEdge);
  picRun.BackColor = colors::kButtonFace;
  picRun.Visible = false;
  lblRun.Move(kEdge, kEdge, kPanelWidth - 2 * kEdge, kLine);
  lblRun.Font = quillon::Font{"Tahoma", 9.75, true, false, false};
  lstPrinted.Move(kEdge, 2 * kEdge + kLine, kPanelWidth - 2 * kEdge, kListHeight);
  const char* const captions[] = {"F7: Next", "Esc: Stop", "F6: Spoilt"};
  const int order[] = {1, 2, 0};  // Spoilt, Next, Stop from the left
  for (int button = 0; button < 3; ++button) {
    btnRun(button).Caption = captions[button];
    btnRun(button).Move(kPanelWidth - (3 - order[button]) * (kButtonWidth + kEdge),
                        picRun.Height - kLine - kEdge, kButtonWidth, kLine);
  }
}

}  // namespace quillon
