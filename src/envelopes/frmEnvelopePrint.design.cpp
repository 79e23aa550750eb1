#include "envelopes/frmEnvelopePrint.h"

#include "host/controls/Colors.h"

namespace quillon {

namespace {

constexpr long kEdge = 180;
constexpr long kLine = 345;
constexpr long kRow = 420;
constexpr long kFrameWidth = 8400;
constexpr long kFrameHeight = 5760;
constexpr long kWhite = 0xFFFFFF;
constexpr long kBlack = 0;

struct ObjectDesign {
  const char* Tag;
  const char* Caption;
  long Left;
  long Top;
  long Width;
  long Height;
  double FontSize;
  bool Bold;
  bool Underline;
  bool Shown;
};

constexpr ObjectDesign kObjects[] = {
    {"ModeOfPost", "", 420, 240, 4965, 345, 11.25, true, true, true},
    {"Name", "Name", 420, 960, 4965, 345, 9.75, true, false, true},
    {"Address", "Address", 420, 1200, 4965, 1485, 9.75, false, false, true},
    {"Phone", "Phone", 420, 2640, 4965, 345, 9.75, false, false, true},
    {"Mobile", "Mobile", 420, 2880, 4965, 345, 9.75, false, false, true},
    {"From", "From", 420, 3540, 4965, 1365, 8.25, false, false, true},
    {"Custom1", "Custom-1", 5460, 960, 5145, 345, 9.75, false, false, false},
    {"Custom2", "Custom-2", 5460, 1200, 5145, 345, 9.75, false, false, false},
    {"Custom3", "Custom-3", 5460, 1440, 5145, 345, 9.75, false, false, false},
    {"Custom4", "Custom-4", 5460, 1680, 5145, 345, 9.75, false, false, false},
    {"Custom5", "Custom-5", 5460, 1920, 5145, 345, 9.75, false, false, false},
};

constexpr const char* kChecks[] = {"Print Mode of Post ", "Print Name",   "Print Address",
                                   "Print Phone",         "Print Mobile", "Print From Address",
                                   "Print Custom Lines"};
constexpr const char* kModes[] = {"AIR MAIL",        "BOOK POST",  "BY COURIER", "BY HAND", "ORDINARY POST",
                                  "REGISTERED POST", "SPEED POST", "U.P.C.",     "-None-"};
constexpr const char* kSizes[] = {"Small", "Medium", "Large", "Custom"};
constexpr int kNoMode = 8;
constexpr int kCustomCheck = 6;
constexpr int kMedium = 1;

}  // namespace

void frmEnvelopePrint::BuildBar() {
  BtnBar1.AddButtons({"Previous,F4: Previous,Previous", "Next,F5: Next,Next", "PrintAll,F6: Print All,Print",
                      "Save,F7: Save Settings,Save", "F8", "Print,F9: Print,Print", "Exit,Esc: Exit,Close"});
  BtnBar1.HideButtons({"F8"});
}

void frmEnvelopePrint::DesignControls() {
  // The objects have the whole form, from its first line on.
  lblTitle.Visible = false;
  MStrip1.Visible = false;
  QuillonStdButtons1.Visible = false;
  int index = 0;
  for (const ObjectDesign& design : kObjects) {
    Label& object = Lbl(index++);
    object.Tag = design.Tag;
    object.Caption = design.Caption;
    object.Move(design.Left, design.Top, design.Width, design.Height);
    object.Visible = design.Shown;
    object.FromTop = true;
    object.BackColor = kWhite;
    object.ForeColor = kBlack;
    object.Font = quillon::Font{"Tahoma", design.FontSize, design.Bold, false, design.Underline};
  }
  for (const char* mode : kModes) Combo1.AddItem(mode);
  Combo1.Editable = true;
  Combo1.SetListIndex(kNoMode);
  for (const char* size : kSizes) Combo2.AddItem(size);
  Combo2.SetListIndex(kMedium);
  lblMode.Caption = "Mode of Post";
  lblSize.Caption = "Envelope";
  btnConfig.Caption = "Config ...";
  lblHint.Caption =
      "Page Down or a click chooses an item, the arrow keys move it, with Ctrl finely; Space or a double click "
      "changes its font.";
  lblHint.WordWrap = true;
  DesignFrame();
}

/// What depends on the area that the host gives.
void frmEnvelopePrint::PlaceControls() {
  constexpr long kPanelHeight = 600;
  constexpr long kTop = (kPanelHeight - kLine) / 2;
  BtnBar1.BackColor = colors::kButtonFace;
  Picture1.BackColor = colors::kButtonFace;
  Picture1.Move(0, BtnBar1.Top - kPanelHeight, Width, kPanelHeight);
  lblMode.Move(kEdge, kTop, 1260, kLine);
  Combo1.Move(1500, kTop, 2700, kLine);
  lblSize.Move(4560, kTop, 900, kLine);
  Combo2.Move(5520, kTop, 1800, kLine);
  btnConfig.Move(7560, kTop, 1500, kLine);
  lblHint.Move(9420, kTop, Width - 9420 - kEdge, kPanelHeight - kTop);
  Frame1.Move((Width - kFrameWidth) / 2, (Height - kFrameHeight) / 2, kFrameWidth, kFrameHeight);
}

void frmEnvelopePrint::DesignFrame() {
  constexpr long kRight = 3600;
  Frame1.Visible = false;
  Frame1.BackColor = colors::kButtonFace;
  Label2.Caption = "Envelope Configuration";
  Label2.Font = quillon::Font{"Tahoma", 9.75, true, false, false};
  Label2.Move(kEdge, kEdge, kFrameWidth - 2 * kEdge, kLine);
  for (auto& [index, check] : Check1) {
    check->Caption = kChecks[index];
    check->CheckValue = Lbl(index).Visible.Own() ? 1 : 0;
    const bool isAboveLines = index == kCustomCheck;
    check->Move(isAboveLines ? kRight : kEdge, 720 + (isAboveLines ? 0 : index) * kRow, kRight - 2 * kEdge,
                kLine);
  }
  for (auto& [index, line] : Text1) {
    line->Move(kRight, 720 + (index + 1) * kRow, kFrameWidth - kRight - kEdge, kLine);
  }
  constexpr const char* kMargins[] = {"Top Margin (Inch)", "Left Margin (Inch)"};
  for (auto& [index, margin] : lblMargin) {
    margin->Caption = kMargins[index];
    margin->Move(kEdge, 3900 + index * kRow, 1800, kLine);
    Text2(index).Text = "0.00";
    Text2(index).Move(2040, 3900 + index * kRow, 1080, kLine);
  }
  chkLandscape.Caption = "Landscape Printing";
  chkLandscape.Move(kRight, 3900, 3000, kLine);
  btnOK.Caption = "OK";
  btnOK.Move(kFrameWidth - 1500 - kEdge, kFrameHeight - 420 - kEdge, 1500, 420);
}

}  // namespace quillon
