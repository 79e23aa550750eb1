#include "correspondence/frmAddLabelSetup.h"

#include "correspondence/LabelConfig.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kColumns = 2;
constexpr int kFirstYesNo = 5;

struct FieldDesign {
  const char* Name;
  const char* Caption;
};

constexpr FieldDesign kFields[] = {
    {"Height", "Label Height (Inches)"}, {"TopMargin", "Label Top Margin (Twips)"},
    {"Columns", "No. of Columns"},       {"ColumnGap", "Gap Between Columns (Twips)"},
    {"Copies", "No. of Copies"},         {"PrintPhone", "Print Phone No. (Off.)"},
    {"PrintMobile", "Print Mobile No."}, {"PrintAadhar", "Print Aadhaar No."}};

/// "Y" and "N" replace what stands there, and no other character goes in.
void TakeYesNo(CTextPlus& field, int& character) {
  if (character == 'Y' || character == 'y') field.Text = "Y";
  if (character == 'N' || character == 'n') field.Text = "N";
  if (character >= keys::kSpace) character = 0;
}

}  // namespace

frmAddLabelSetup::frmAddLabelSetup()
    : DialogForm({.className = "frmAddLabelSetup", .caption = "Label Setup", .width = 5400, .height = 4800}),
      txp1(*this, "txp1", {0, 1, 2, 3, 4, 5, 6, 7}) {
  Member("Config", Config);
  DesignControls();
  for (auto& [index, field] : txp1) {
    CTextPlus& own = *field;
    if (index >= kFirstYesNo) own.KeyPress = [&own](int& character) { TakeYesNo(own, character); };
  }
  txp1(kColumns).Validate = [this](bool& cancel) {
    const double columns = Val(txp1(kColumns).Text());
    cancel = columns < 1 || columns > LabelConfig::kMostColumns;
    if (cancel) gStd->MsgBox("Enter value between 1-6", "", "W", "", 0, kFieldMessage);
  };
}

void frmAddLabelSetup::DesignControls() {
  constexpr long kRow = 450;
  for (auto& [index, field] : txp1) {
    field->FieldName = kFields[index].Name;
    field->Caption = kFields[index].Caption;
    field->LabelWidth = 3000;
    field->Move(240, 240 + index * kRow, 4500, 360);
  }
}

void frmAddLabelSetup::LoadDialog() {
  for (auto& [index, field] : txp1) field->Text = Config.Item(field->FieldName);
}

void frmAddLabelSetup::OnActivate() { txp1(0).SetFocus(); }

bool frmAddLabelSetup::Confirm() {
  if (!txp1(kColumns).MayLeave()) {
    txp1(kColumns).SetFocus();
    return false;
  }
  for (auto& [index, field] : txp1) Config.SetItem(field->FieldName, field->Text);
  return true;
}

}  // namespace quillon
