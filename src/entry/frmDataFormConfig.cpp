#include "entry/frmDataFormConfig.h"

namespace quillon {

namespace {

constexpr const char* kCaptions[] = {
    "Date Input Style", "Narration Auto Increment", "Party's Bank Column", "Cleared on Date Column",
    "Agent Column",     "Memo Entry required",      "Apply TCS required"};
constexpr int kDateStyle = 0;
constexpr int kTax = 6;
constexpr int kDoesNotApply = -1;

}  // namespace

frmDataFormConfig::frmDataFormConfig()
    : DialogForm({.className = "frmDataFormConfig",
                  .caption = "Data Forms Configuration",
                  .width = 6300,
                  .height = 4350,
                  .buttons = "Command1"}),
      Label1(*this, "Label1", {0, 1, 2, 3, 4, 5, 6}),
      Combo1(*this, "Combo1", {0, 1, 2, 3, 4, 5, 6}) {
  Member("fDataForm", fDataForm);
  Member("AutoIncNar", AutoIncNar);
  Member("DateCol", DateCol);
  Member("BankCol", BankCol);
  Member("ClearDateCol", ClearDateCol);
  Member("Agent", Agent);
  Member("ApplyTCS", ApplyTCS);
  Member("ApplyTDS", ApplyTDS);
  Member("MemoEntry", MemoEntry);
  DesignControls();
}

void frmDataFormConfig::DesignControls() {
  for (int row = 0; row < kRows; ++row) {
    const long top = 150 + row * 480L;
    Label1(row).Caption = kCaptions[row];
    Label1(row).Move(150, top, 3000, 360);
    Combo1(row).Move(3240, top, Width - 3240 - 150, 360);
  }
}

int& frmDataFormConfig::Option(int row) {
  int* const options[kRows] = {&DateCol,
                               &AutoIncNar,
                               &BankCol,
                               &ClearDateCol,
                               &Agent,
                               &MemoEntry,
                               ApplyTCS == kDoesNotApply ? &ApplyTDS : &ApplyTCS};
  return *options[row];
}

void frmDataFormConfig::LoadDialog() {
  if (ApplyTCS == kDoesNotApply) Label1(kTax).Caption = "Apply TDS required";
  for (int row = 0; row < kRows; ++row) {
    ComboBox& combo = Combo1(row);
    combo.Clear();
    combo.AddItem(row == kDateStyle ? "Once in the Form" : "No");
    combo.AddItem(row == kDateStyle ? "With Every Entry" : "Yes");
    const bool applies = Option(row) != kDoesNotApply;
    if (applies) combo.SetListIndex(Option(row) == 1 ? 1 : 0);
    combo.Visible = applies;
    Label1(row).Visible = applies;
  }
}

bool frmDataFormConfig::Confirm() {
  for (int row = 0; row < kRows; ++row) {
    if (Option(row) != kDoesNotApply) Option(row) = Combo1(row).ListIndex();
  }
  return true;
}

}  // namespace quillon
