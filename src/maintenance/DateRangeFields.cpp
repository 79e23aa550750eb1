#include "maintenance/DateRangeFields.h"

#include "host/forms/Fields.h"
#include "host/services/IStd.h"

namespace quillon {

namespace {

constexpr long kEdge = 180;
constexpr long kTop = 390;
constexpr long kLine = 360;
constexpr long kLabel = 720;
constexpr long kHeight = 870;

}  // namespace

DateRangeFields::DateRangeFields(Form& form, const std::string& frame)
    : fraDates(form, frame), txpDate1(fraDates, "txpDate1"), txpDate2(fraDates, "txpDate2") {
  MakeDateField(txpDate1);
  MakeDateField(txpDate2);
  txpDate2.GotFocus = [this] {
    if (!txpDate2.Text->empty()) return;
    txpDate2.Text = txpDate1.Text();
    txpDate2.TextBox.SelectAll();
  };
}

long DateRangeFields::Place(long left, long top, long width) {
  fraDates.Caption = "Date Range";
  fraDates.Move(left, top, width, kHeight);
  const long half = (width - 3 * kEdge) / 2;
  txpDate1.Caption = "From";
  txpDate1.LabelWidth = kLabel;
  txpDate1.Move(kEdge, kTop, half, kLine);
  txpDate2.Caption = "To";
  txpDate2.LabelWidth = kLabel;
  txpDate2.Move(2 * kEdge + half, kTop, half, kLine);
  return kHeight;
}

/// A key presses OK without leaving the field, so that what stands there is looked at here too.
bool DateRangeFields::Check() {
  if (txpDate1.Text->empty()) return RefuseAt(txpDate1, "Specify From Date");
  if (txpDate2.Text->empty()) return RefuseAt(txpDate2, "Specify To Date");
  for (CTextPlus* field : {&txpDate1, &txpDate2}) {
    if (field->MayLeave()) continue;
    field->SetFocus();
    return false;
  }
  if (DateOf(txpDate2) < DateOf(txpDate1)) {
    return RefuseAt(txpDate1, "To Date can't be less than From Date");
  }
  return true;
}

Date DateRangeFields::First() const { return DateOf(txpDate1); }

std::string DateRangeFields::Sql() const { return gStd->SqlDate(DateOf(txpDate1), DateOf(txpDate2)); }

}  // namespace quillon
