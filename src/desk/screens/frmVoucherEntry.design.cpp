#include "desk/screens/frmVoucherEntry.h"

namespace quillon {

namespace {

constexpr long kGap = 90;
constexpr long kLine = 375;
constexpr long kListHeight = 3600;
constexpr long kListWidth = 7500;
constexpr int kNarrationLength = 250;

}  // namespace

void frmVoucherEntry::BuildBar() {
  BtnBar1.AddButtons({"New,F2: New,New", "Delete,F3: Delete,Delete", "Cheque,F4: Cheque,Cheque",
                      "NewAccount,F5: New A/c,Account", "Leaves,F6: Leaves,List", "Save,F7: Save,Save",
                      "Previous,F8: Previous,Previous", "Next,F9: Next,Next", "Exit,Esc: Exit,Close"});
}

void frmVoucherEntry::DesignControls() {
  long top = ContentTop() + kGap;
  lblKind.Caption = "Voucher";
  lblKind.Move(kGap, top, 1200, kLine);
  cmbKind.Move(1290, top, 3600, kLine);
  cmbKind.TabStop = false;
  const auto place = [](CTextPlus& field, const char* caption, long left, long fieldTop, long label,
                        long width) {
    field.Caption = caption;
    field.LabelWidth = label;
    field.Move(left, fieldTop, label + width, kLine);
  };
  place(txpDay, "Date", 5400, top, 750, 1800);
  place(txpNumber, "No.", 8400, top, 600, 1800);
  top += kLine + kGap;
  place(txpMain, "", kGap, top, 1200, 5700);
  const long fields = ContentBottom() - 2 * (kLine + kGap);
  Grid.Move(0, top + kLine + kGap, Width, fields - kGap - (top + kLine + kGap));
  Grid.Font = quillon::Font{"Tahoma", 9.75, false, false, false};
  place(txpNarration, "Narration", kGap, fields, 1200, 12600);
  txpNarration.TextBox.MaxLength = kNarrationLength;
  place(txpChqNo, "Cheque No.", 14400, fields, 1350, 1650);
  txpChqNo.TextNumericOnly = true;
  lblMissing.Move(kGap, fields + kLine + kGap, Width - 2 * kGap, kLine);
  lblMissing.Font = quillon::Font{"Tahoma", 9.75, true, false, false};
  for (CSelGrid* const list : {&SelGrid1, &SelGrid2}) {
    list->Move(0, 0, kListWidth, kListHeight);
    list->Visible = false;
  }
}

}  // namespace quillon
