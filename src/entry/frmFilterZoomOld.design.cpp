#include "entry/frmFilterZoomOld.h"

namespace quillon {

namespace {

constexpr long kEdge = 150;
constexpr long kGap = 90;
constexpr long kInset = 180;
constexpr long kLine = 360;
constexpr long kListHeight = 2700;
constexpr long kAmountsHeight = 1350;
constexpr long kLabel = 1560;

}  // namespace

void frmFilterZoomOld::DesignControls() {
  CPeriod1.Move(kEdge, kEdge, 6300, kLine);
  CPeriod1.Date1.Caption = "Period: From";
  CPeriod1.Date1.LabelWidth = 1320;
  CPeriod1.Date2.Caption = "To";
  CPeriod1.Date2.LabelWidth = 480;
  long top = kEdge + kLine + 2 * kGap;
  PlaceLists(top, kListHeight);
  top += kListHeight + kGap;
  PlaceAmounts(top);
  PlaceRest(top + kAmountsHeight + 2 * kGap);
  SelGrid1.Visible = false;
}

/// The side, the books and the transaction types stand beside each other.
void frmFilterZoomOld::PlaceLists(long top, long height) {
  const long third = (Width - 2 * kEdge - 2 * kGap) / 3;
  long left = kEdge;
  const auto place = [&](Frame& frame, const char* caption) {
    frame.Caption = caption;
    frame.Move(left, top, third, height);
    left += third + kGap;
  };
  const auto list = [&](Frame& frame, ListBox& items, CheckBox& all, const char* caption) {
    place(frame, caption);
    items.Move(kInset, 390, third - 2 * kInset, height - 390 - kLine - 2 * kGap);
    all.Caption = "Check All";
    all.Move(kInset, height - kLine - kGap, third - 2 * kInset, kLine);
  };
  place(Frame1, "Entry Type");
  const char* const sides[] = {"Debit Entries Only", "Credit Entries Only", "Both Debit/Credit Entries"};
  for (auto& [index, option] : Option1) {
    option->Caption = sides[index];
    option->Move(kInset, 390 + index * 510L, third - 2 * kInset, kLine);
  }
  Option1(2).Chosen = true;
  list(Frame2, lstBooks, chkBooks, "Book");
  list(Frame5, lstTrnTypes, chkTrnTypes, "Trn. Types");
}

void frmFilterZoomOld::PlaceAmounts(long top) {
  Frame3.Caption = "Amount Range";
  Frame3.Move(kEdge, top, Width - 2 * kEdge, kAmountsHeight);
  const char* const captions[] = {"Debit Amounts :   From", "To", "Credit Amounts : From", "To"};
  for (auto& [field, amount] : txp1) {
    const bool second = field % 2 != 0;
    amount->Caption = captions[field];
    amount->LabelWidth = second ? 480 : 2160;
    amount->Move(second ? 4740 : kInset, 360 + field / 2 * 480L, second ? 2700 : 4320, kLine);
    amount->TextNumericOnly = true;
    amount->AllowDecimalPoints = true;
  }
}

void frmFilterZoomOld::PlaceRest(long top) {
  txpAcRange.Caption = "Accounts";
  txpAcRange.PickButton = true;
  txpAcRange.Locked = true;
  txpVATClass.Caption = "VAT Class";
  for (CTextPlus* const field : {&txpAcRange, &txpVATClass}) {
    field->LabelWidth = kLabel;
    field->Move(kEdge, top, Width - 2 * kEdge, kLine);
    top += kLine + kGap;
  }
  const long third = (Width - 2 * kEdge) / 3;
  int place = 0;
  const auto box = [&](CheckBox& check, const char* caption) {
    check.Caption = caption;
    check.Move(kEdge + place++ * third, top + kGap, third - kGap, kLine);
  };
  box(chkPrintVouchers, "Print Vouchers");
  box(chkShowTotals, "Show Totals");
  box(chkShowStock, "Show Stock");
  SelGrid1.Move(kEdge + kLabel, top, Width - 2 * kEdge - kLabel, 2400);
}

}  // namespace quillon
