#include "cheques/frmChqPrint.h"

#include "host/controls/Colors.h"

namespace quillon {

namespace {

constexpr long kLine = 345;
constexpr long kRow = 390;
constexpr long kEdge = 120;
constexpr long kWhite = 0xFFFFFF;
constexpr long kBlack = 0;
constexpr long kChequePaper = 0xF2FBFA;
constexpr long kChequeLine = 0xC0B8A8;
constexpr long kChequeWidth = 11400;
constexpr long kChequeHeight = 4800;
constexpr long kOptionsHeight = 2700;
constexpr long kHintLeft = 10920;
constexpr long kHintWidth = 3300;
constexpr int kRight = 1;

const Font kObjectFont{"Tahoma", 9.75, true, false, false};

struct ObjectDesign {
  const char* Tag;
  const char* Caption;
  long Left;
  long Top;
  long Width;
  int Index;
  bool Shown;
  bool AlignsRight;
};

constexpr ObjectDesign kObjects[] = {
    {"PayTo", "Pay To", 870, 720, 7545, 0, true, false},
    {"Date", "Date", 8790, 270, 2145, 1, true, false},
    {"AmtInWords", "Amount in words", 870, 1140, 7545, 2, true, false},
    {"Amount", "Rs.", 8460, 1560, 2055, 3, true, false},
    {"ForFirm", "For", 4980, 2100, 4065, 4, true, true},
    {"Desig", "Designation", 4980, 2730, 4065, 5, true, true},
    {"PayeesAc", "Payee's A/c Only", 240, 120, 2325, 6, true, false},
    {"BankAcNo", "A/c No:", 870, 2700, 3405, 7, false, false},
    {"AmtInWords2", "Amount in words - 2", 870, 1500, 7545, 8, true, false},
    {"Remarks", "Remarks", 870, 3180, 4605, 9, false, false},
    {"NotExceeding", "Not Exceeding", 870, 3660, 4605, 10, false, false},
};

void Place(Label& label, long left, long top, long width, double size = 9.75, bool bold = false) {
  label.Move(left, top, width, kLine);
  label.Font = Font{"Tahoma", size, bold, false, false};
}

}  // namespace

void frmChqPrint::BuildBar() {
  BtnBar1.AddButtons({"Prev,F3: Prev,LeftArrow", "Next,F4: Next,RightArrow", "F5",
                      "Settings,F6: Settings,Config", "F7", "F8", "Print,F9: Print,Print", "Exit,Esc: Exit"});
  BtnBar1.HideButtons({"F5", "F7", "F8"});
}

void frmChqPrint::DesignControls() {
  MStrip1.Visible = false;
  DesignObjects();
  DesignCheque();
  DesignOptions();
  DesignButtons();
}

void frmChqPrint::DesignObjects() {
  for (const ObjectDesign& design : kObjects) {
    Label& object = Lbl(design.Index);
    object.Tag = design.Tag;
    object.Caption = design.Caption;
    object.Move(design.Left, design.Top, design.Width, kLine);
    object.Visible = design.Shown;
    object.Alignment = design.AlignsRight ? kRight : 0;
    object.FromTop = true;
    object.BackColor = kWhite;
    object.ForeColor = kBlack;
    object.Font = kObjectFont;
  }
  Lbl(6).Font = quillon::Font{"Tahoma", 9.75, true, false, true};
}

/// What depends on the area that the host gives. The preview lies over the objects and over the title, which
/// it therefore has itself.
void frmChqPrint::DesignPreview() {
  lblPreview.Move(lblTitle.Left, lblTitle.Top, lblTitle.Width, lblTitle.Height);
  lblPreview.Font = quillon::Font{"Tahoma", 9.75, true, false, false};
  BtnBar1.BackColor = colors::kButtonFace;
  pic2.BorderStyle = 0;
  pic2.BackColor = colors::kButtonFace;
  pic2.Move(0, 0, Width, BtnBar1.Top);
  picCheque.Move(std::max((Width - kChequeWidth) / 2, 0L), 1200, kChequeWidth, kChequeHeight);
  picBankName.Move(picCheque.Left, 480, 6000, 480);
  picBankName.BorderStyle = 0;
  picBankName.Visible = false;
  txpBank.Move(0, 60, 6000, 360);
  txpBank.Locked = true;
  picOpt.BackColor = colors::kButtonFace;
  picOpt.Move(0, Height - kOptionsHeight, Width, kOptionsHeight);
  picOpt.Visible = false;
  lblHint.Move(kHintLeft, kEdge, std::min(kHintWidth, Width - kHintLeft - kEdge), 6 * kRow);
}

void frmChqPrint::DesignCheque() {
  picCheque.BackColor = kChequePaper;
  Place(lblBankName2, 300, 180, 7500, 14, true);
  lblBankName2.Height = 420;
  Place(lblBankAdd2, 300, 600, 5400);
  lblDate0.Caption = "Date";
  Place(lblDate0, 7900, 240, 600);
  Place(lblDate2, 8600, 240, 2500, 9.75, true);
  lblPayeesAc2.Caption = "Payee's A/c Only";
  Place(lblPayeesAc2, 7900, 720, 2600, 9.75, true);
  lblPayTo0.Caption = "Pay To";
  Place(lblPayTo0, 300, 1320, 900);
  Place(lblPayTo2, 1260, 1320, 9840, 9.75, true);
  lblRupees0.Caption = "Rupees";
  Place(lblRupees0, 300, 1860, 900);
  Place(lblAmountInWords2, 1260, 1860, 6500, 9.75, true);
  Place(lblAmountInWords22, 300, 2340, 7460, 9.75, true);
  lblRs0.Caption = "Rs.";
  Place(lblRs0, 8100, 2220, 480, 11.25, true);
  Place(lblAmount2, 8640, 2220, 2400, 11.25, true);
  lblAcNo20.Caption = "A/c No.";
  Place(lblAcNo20, 300, 2940, 900);
  Place(lblAcNo2, 1260, 2940, 4200, 9.75, true);
  lblRemarks20.Caption = "Remarks";
  Place(lblRemarks20, 300, 3420, 900);
  Place(lblRemarks2, 1260, 3420, 4640, 9.75, true);
  Place(lblChqNo2, 300, 4260, 3600);
  Place(lblFor2, 6000, 2940, 5100, 9.75, true);
  Place(lblSignatory2, 6000, 4080, 5100, 9.75, true);
  lblFor2.Alignment = kRight;
  lblSignatory2.Alignment = kRight;
  const auto rule = [this](long left, long top, long right) {
    picCheque.DrawLine({left, top, right, top, kChequeLine});
  };
  rule(8600, 600, 11100);
  rule(1260, 1680, 11100);
  rule(1260, 2220, 7760);
  rule(300, 2700, 7760);
  for (const long top : {2160L, 2640L}) rule(8040, top, 11100);
  for (const long left : {8040L, 11100L}) picCheque.DrawLine({left, 2160, left, 2640, kChequeLine});
}

void frmChqPrint::DesignOptions() {
  constexpr long kChecksLeft = kEdge;
  constexpr long kFieldsLeft = 2520;
  const struct {
    CheckBox& Box;
    const char* Caption;
    bool Ticked;
  } checks[] = {{Check1, "Print Stamp", true},        {Check2, "Landscape", false},
                {Check3, "Payee's A/c", true},        {Check4, "Print Date", true},
                {chkStation, "Print Station", false}, {chkNotExceeding, "Not Exceeding", false}};
  long top = kEdge;
  for (const auto& check : checks) {
    check.Box.Caption = check.Caption;
    check.Box.CheckValue = check.Ticked ? 1 : 0;
    check.Box.Move(kChecksLeft, top, 2280, kLine);
    top += kRow;
  }
  chkBankDetails.Caption = "Bank Details";
  chkBankDetails.Move(kFieldsLeft, kEdge, 2280, kLine);
  lblDateStyle.Caption = "Date Style";
  lblDateStyle.Move(kFieldsLeft, kEdge + kRow, 1320, kLine);
  cmbDateStyle.Move(kFieldsLeft + 1320, kEdge + kRow, 1800, kLine);
  for (const char* style : {"dd-MMM-yyyy", "dd-MM-yyyy", "Box Style"}) cmbDateStyle.AddItem(style);
  cmbDateStyle.SetListIndex(kPlainDate);
  const struct {
    CTextPlus& Field;
    const char* Caption;
    const char* Unit;
  } fields[] = {{txpTopMargin, "Top Margin", "Inches"},
                {txpLeftMargin, "Left Margin", "Inches"},
                {txpDateChrGap, "Date Chr. Gap", "Twips"}};
  top = kEdge + 2 * kRow;
  int unit = 0;
  for (const auto& field : fields) {
    field.Field.Caption = field.Caption;
    field.Field.LabelWidth = 1320;
    field.Field.Move(kFieldsLeft, top, 2280, kLine);
    lblUnit(unit).Caption = field.Unit;
    lblUnit(unit).Move(kFieldsLeft + 2370, top, 800, kLine);
    ++unit;
    top += kRow;
  }
}

void frmChqPrint::DesignButtons() {
  constexpr long kEditsLeft = 6000;
  constexpr long kActsLeft = 8400;
  constexpr long kButtonWidth = 2220;
  const auto place = [](CommandButton& button, const char* caption, long left, int row) {
    button.Caption = caption;
    button.Move(left, kEdge + row * kRow, kButtonWidth, kLine);
  };
  place(btnPayTo, "Pay To", kEditsLeft, 0);
  place(btnAcNo, "Bank A/c No.", kEditsLeft, 1);
  place(btnRemarks, "Remarks", kEditsLeft, 2);
  place(btnFont, "Change Font...", kEditsLeft, 3);
  place(btnAmtWidth, "Amount Width", kEditsLeft, 4);
  place(btnSettings(0), "F7: &Save Settings", kActsLeft, 0);
  place(btnSettings(1), "Delete Settings", kActsLeft, 1);
  place(btnSettings(3), "Save Chq. Def.", kActsLeft, 2);
  place(btnSettings(4), "Import Chq. Def.", kActsLeft, 3);
  place(btnOKCancel(0), "F9: &Print", kActsLeft, 4);
  place(btnOKCancel(1), "Esc: Close", kActsLeft, 5);
  // In this array the second button is no way out.
  btnSettings(1).IsCancel = false;
  lblHint.Caption =
      "Click an item, or choose it by Page Down, and move it by the arrow keys; with Ctrl it moves finely. The lines are inches and "
      "eighths of an inch from the leaf's upper left corner.";
  lblHint.WordWrap = true;
}

}  // namespace quillon
