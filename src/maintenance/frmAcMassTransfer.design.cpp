#include "maintenance/frmAcMassTransfer.h"

namespace quillon {

namespace {

constexpr long kEdge = 150;
constexpr long kGap = 90;
constexpr long kInset = 180;
constexpr long kTop = 390;
constexpr long kLine = 360;
constexpr long kFrameHeight = 870;
constexpr long kListsHeight = 2310;
constexpr long kUnderList = 60;

}  // namespace

void frmAcMassTransfer::DesignControls() {
  HelpContext = 7;
  lblTitle.Caption = "   Transfer entries from one account to another";
  lblTitle.Move(0, 0, Width, 420);
  lblTitle.Font = quillon::Font{"Tahoma", 9.75, true, false, false};
  const long width = Width - 2 * kEdge;
  long top = lblTitle.Height + kGap;
  const auto field = [&](Frame& frame, TextBox& box, const char* caption) {
    frame.Caption = caption;
    frame.Move(kEdge, top, width, kFrameHeight);
    box.Move(kInset, kTop, width - 2 * kInset, kLine);
    top += kFrameHeight + kGap;
  };
  field(Frame3, txtFromAc, "From A/c");
  txtFromAc.Locked = true;
  txtFromAc.TabStop = false;
  field(Frame4, txtToAc, "To A/c");
  top += Dates.Place(kEdge, top, width) + kGap;
  DesignLists(top);
  top += kListsHeight + kGap;
  field(Frame6, txtNarration, "Contains Narration");
  chkMergeTpt.Caption = "Merge Transports";
  chkMergeTpt.Move(kEdge + kInset, btnOKCancel(0).Top, 3000, kLine);
  chkMergeTpt.Enabled = false;
  SelGrid1.Visible = false;
}

/// Books, transaction types and the side stand beside each other.
void frmAcMassTransfer::DesignLists(long top) {
  const long third = (Width - 2 * kEdge - 2 * kGap) / 3;
  long left = kEdge;
  const auto place = [&](Frame& frame, const char* caption) {
    frame.Caption = caption;
    frame.Move(left, top, third, kListsHeight);
    left += third + kGap;
  };
  const auto list = [&](Frame& frame, ListBox& items, CheckBox& all, const char* caption) {
    place(frame, caption);
    items.Move(kInset, kTop, third - 2 * kInset, kListsHeight - kTop - kLine - 2 * kGap);
    all.Caption = "Check All";
    all.Move(kInset, kListsHeight - kLine - kGap, third - 2 * kInset, kLine);
  };
  list(Frame2, lstBooks, chkBooks, "Book");
  list(Frame5, lstTTypes, chkTTypes, "Trn. Types");
  place(Frame7, "Entries");
  const char* const sides[] = {"Debit Entries Only", "Credit Entries Only", "Both"};
  for (auto& [index, option] : optDrCr) {
    option->Caption = sides[index];
    option->Move(kInset, kTop + index * 450L, third - 2 * kInset, kLine);
  }
  optDrCr(2).Chosen = true;
}

/// Under the target account, to the bottom of the form.
CSelGrid::Room frmAcMassTransfer::ListRoom() const {
  return {.indent = 0, .width = ScaleWidth() - 2 * (txtToAc.Left + Frame4.Left), .aboveBottom = kUnderList};
}

void frmAcMassTransfer::PlaceList() {
  const long left = txtToAc.Left + Frame4.Left;
  const long top = txtToAc.Top + txtToAc.Height + Frame4.Top;
  SelGrid1.Move(left, top, ScaleWidth() - 2 * left, ScaleHeight() - top - kUnderList);
}

}  // namespace quillon
