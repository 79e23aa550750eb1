#include "entry/frmFilterZoomOld.h"

#include <algorithm>

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/forms/Fields.h"
#include "host/forms/Runtime.h"
#include "host/services/IApp.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr long kWidth = 9600;
constexpr long kHeight = 7650;
constexpr int kCancel = 1;

/// What an upper limit alone begins with, so that entries of no amount stay out.
constexpr Amount kLeast = Amount::OfUnits(10);

std::string TickedList(const ListBox& list) {
  return list.SelCount() == list.ListCount() ? "" : books::SqlStrings(TickedItems(list));
}

}  // namespace

frmFilterZoomOld::frmFilterZoomOld()
    : DialogForm({.className = "frmFilterZoomOld",
                  .caption = "Filter",
                  .width = kWidth,
                  .height = kHeight,
                  .keepsLoaded = true}),
      CPeriod1(*this, "CPeriod1"),
      Frame1(*this, "Frame1"),
      Option1(Frame1, "Option1", {0, 1, 2}),
      Frame2(*this, "Frame2"),
      lstBooks(Frame2, "lstBooks"),
      chkBooks(Frame2, "chkBooks"),
      Frame5(*this, "Frame5"),
      lstTrnTypes(Frame5, "lstTrnTypes"),
      chkTrnTypes(Frame5, "chkTrnTypes"),
      Frame3(*this, "Frame3"),
      txp1(Frame3, "txp1", {0, 1, 2, 3}),
      txpAcRange(*this, "txpAcRange"),
      txpVATClass(*this, "txpVATClass"),
      chkPrintVouchers(*this, "chkPrintVouchers"),
      chkShowTotals(*this, "chkShowTotals"),
      chkShowStock(*this, "chkShowStock"),
      SelGrid1(*this, "SelGrid1") {
  MemberChoices();
  DesignControls();
  btnOKCancel(kCancel).Click = [this] { gRuntime->Unload(*this, UnloadMode::CloseBox); };
  chkBooks.Click = [this] { TickAll(lstBooks, chkBooks.CheckValue == 1); };
  chkTrnTypes.Click = [this] { TickAll(lstTrnTypes, chkTrnTypes.CheckValue == 1); };
  txpAcRange.ButtonClick = [this] { PickAccounts(); };
  txpVATClass.GotFocus = [this] {
    if (!SelGrid1.Visible) SelGrid1.OpenUnder(txpVATClass);
  };
  txpVATClass.LostFocus = [this] {
    SelGrid1.Close();
    if (txpVATClass.Text->empty()) txpVATClass.Tag = "";
  };
  // What is typed over names no class until one is picked again.
  txpVATClass.Change = [this] { txpVATClass.Tag = ""; };
  SelGrid1.Selected = [this] { txpVATClass.Tag = SelGrid1.Cell(SelGrid1.Grid.Row, 1); };
}

/// Left otherwise than by OK it keeps nothing.
void frmFilterZoomOld::OnQueryUnload(bool& /*cancel*/, UnloadMode mode) {
  if (mode == UnloadMode::CloseBox) Cancelled = true;
}

void frmFilterZoomOld::MemberChoices() {
  Member("Date1", Date1);
  Member("Date2", Date2);
  Member("Books", Books);
  Member("TrnTypes", TrnTypes);
  Member("DRCR", DRCR);
  Member("Amt1", Amt1);
  Member("Amt2", Amt2);
  Member("Amt3", Amt3);
  Member("Amt4", Amt4);
  Member("AcCnd", AcCnd);
  Member("AcCndTxt", AcCndTxt);
  Member("VATClassNo", VATClassNo);
  Member("VATClass", VATClass);
  Member("PrintVouchers", PrintVouchers);
  Member("ShowTotals", ShowTotals);
  Member("ShowStock", ShowStock);
}

void frmFilterZoomOld::LoadDialog() {
  CDbLink& db = gSession->MainDb();
  if (!Date1.empty()) CPeriod1.Date1.Text = Date1;
  if (!Date2.empty()) CPeriod1.Date2.Text = Date2;
  FillCheckList(lstBooks, FirstColumn("Select distinct dBook from FAData where dBook<>'0B'", db), true);
  FillCheckList(lstTrnTypes, FirstColumn("Select distinct dTrnType from FAData where dBook<>'0B'", db), true);
  chkBooks.CheckValue = 1;
  chkTrnTypes.CheckValue = 1;
  SelGrid1.Load("Select VATClassName,VATClassNo,PressHead from VATClasses order by PressHead", db, false, 0);
  for (const int hidden : {1, 2}) SelGrid1.Grid.SetColWidth(hidden, 0);
}

void frmFilterZoomOld::OnActivate() {
  if (ActiveControl() == nullptr) CPeriod1.Date1.SetFocus();
}

void frmFilterZoomOld::PickAccounts() {
  if (!accounts_) accounts_ = gApp->GetForm("FilterAc");
  accounts_->Set("SelectionOnly", true);
  accounts_->Set("pBackOnly", true);
  const Corner corner = txpAcRange.CornerOnForm();
  accounts_->Left = Left + corner.left;
  accounts_->Top = std::clamp(Top + corner.top + txpAcRange.Height, 0L,
                              std::max(gRuntime->ScreenHeight() - accounts_->Height, 0L));
  gStd->ShowDialog(accounts_, Self());
  if (accounts_->Get("Cancelled").ToFlag()) return;
  AcCnd = accounts_->Get("AcCnd").ToText();
  AcCndTxt = accounts_->Get("CaptionTitle").ToText();
  txpAcRange.Text = AcCndTxt;
}

bool frmFilterZoomOld::Confirm() {
  if (!CPeriod1.ValidatePeriod()) return false;
  if (lstBooks.SelCount() == 0) return RefuseAt(lstBooks, "No books selected.", "W");
  if (lstTrnTypes.SelCount() == 0) return RefuseAt(lstTrnTypes, "No trn.types selected.", "W");
  Date1 = CPeriod1.Date1.Text();
  Date2 = CPeriod1.Date2.Text();
  Books = TickedList(lstBooks);
  TrnTypes = TickedList(lstTrnTypes);
  DRCR = Option1(0).Chosen ? "DR" : Option1(1).Chosen ? "CR" : "";
  TakeAmounts();
  VATClassNo = static_cast<std::int32_t>(ValInteger(txpVATClass.Tag()));
  VATClass = VATClassNo != 0 ? txpVATClass.Text() : "";
  PrintVouchers = chkPrintVouchers.CheckValue == 1;
  ShowTotals = chkShowTotals.CheckValue == 1;
  ShowStock = chkShowStock.CheckValue == 1;
  return true;
}

void frmFilterZoomOld::TakeAmounts() {
  int field = 0;
  for (Amount* amount : {&Amt1, &Amt2, &Amt3, &Amt4}) *amount = gStd->ParseAmount(txp1(field++).Text());
  if (!Amt2.IsZero() && Amt1.IsZero()) Amt1 = kLeast;
  if (!Amt4.IsZero() && Amt3.IsZero()) Amt3 = kLeast;
}

}  // namespace quillon
