#include "cheques/frmChqLeaves.h"

#include "host/controls/Colors.h"

namespace quillon {

namespace {

constexpr long kEdge = 180;
constexpr long kLine = 360;
constexpr long kRow = 480;
constexpr long kPanelWidth = 6000;
constexpr long kButtonWidth = 1500;
constexpr long kLabelWidth = 900;

/// The heading of a panel and, in its lower right corner, its two buttons.
void DesignPanel(PictureBox& panel, Label& title, ControlArray<CButton>& buttons) {
  panel.BackColor = colors::kButtonFace;
  panel.Visible = false;
  title.Move(kEdge, kEdge, kPanelWidth - 2 * kEdge, kLine);
  title.Font = Font{"Tahoma", 9.75, true, false, false};
  const long top = panel.Height - kLine - kEdge;
  buttons(0).Caption = "F7: OK";
  buttons(0).Move(kPanelWidth - 2 * (kButtonWidth + kEdge), top, kButtonWidth, kLine);
  buttons(1).Caption = "Esc: Cancel";
  buttons(1).Move(kPanelWidth - kButtonWidth - kEdge, top, kButtonWidth, kLine);
}

void DesignField(CTextPlus& field, const char* caption, long left, int row, long width, long labelWidth) {
  field.Caption = caption;
  field.LabelWidth = labelWidth;
  field.Move(left, kEdge + row * kRow, width, kLine);
}

}  // namespace

void frmChqLeaves::BuildBar() {
  BtnBar1.AddButtons({"Add,F2: Add,New", "Cancel,F3: Cancel,Disable", "Filter,F4: Filter,Filter", "F5", "F6",
                      "Others,F7: Others,Expand", "Preview,F8: Preview", "Print,F9: Print",
                      "Exit,Esc: Exit"});
  BtnBar1.HideButtons({"F5", "F6"});
}

void frmChqLeaves::DesignControls() {
  constexpr long kTypesWidth = 2400;
  MStrip1.Width = Width / 2;
  lblTitle2.Move(Width / 2, MStrip1.Top, Width / 2 - kTypesWidth, MStrip1.Height);
  cmbRType.Move(Width - kTypesWidth, MStrip1.Top, kTypesWidth, MStrip1.Height);
  cmbRType.Visible = false;
  PlaceGrid(ContentTop());
  Grid.Visible = false;
  DesignRange();
  DesignFilter();
}

void frmChqLeaves::DesignRange() {
  picChqRange.Move((Width - kPanelWidth) / 2, Height / 4, kPanelWidth, 2340);
  DesignPanel(picChqRange, lblRangeTitle, btnOKCancel);
  DesignField(txpFrom, "From", kEdge, 1, 2700, kLabelWidth);
  DesignField(txpTo, "To", 3180, 1, 2100, 480);
  DesignField(txpRecDate, "Recd. on", kEdge, 2, 2700, kLabelWidth);
  txpFrom.TextNumericOnly = true;
  txpTo.TextNumericOnly = true;
}

void frmChqLeaves::DesignFilter() {
  picFilter.Move((Width - kPanelWidth) / 2, Height / 4, kPanelWidth, 2340);
  DesignPanel(picFilter, lblFilterTitle, btnOKCancel2);
  lblFilterTitle.Caption = "Filter Cheque Leaves";
  DesignField(txpChqNo1, "From", kEdge, 1, 2700, kLabelWidth);
  DesignField(txpChqNo2, "To", 3180, 1, 2100, 480);
  DesignField(txpParties, "Parties", kEdge, 2, kPanelWidth - 2 * kEdge, kLabelWidth);
  txpChqNo1.TextNumericOnly = true;
  txpChqNo2.TextNumericOnly = true;
  txpParties.PickButton = true;
  txpParties.Locked = true;
}

}  // namespace quillon
