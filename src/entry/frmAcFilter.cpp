#include "entry/frmAcFilter.h"

#include "books/SqlText.h"
#include "host/forms/Fields.h"
#include "host/forms/Runtime.h"
#include "host/services/IStd.h"

namespace quillon {

frmAcFilter::frmAcFilter() : StatementFilter("frmAcFilter", true, kEdge) {
  Member("AmtRangeOnly", AmtRangeOnly);
  Member("FilterCnd", FilterCnd);
}

void frmAcFilter::LoadDialog() {
  if (AmtRangeOnly) {
    ShrinkToAmounts();
  } else {
    FillBooks();
  }
}

void frmAcFilter::ShrinkToAmounts() {
  for (Frame* frame : {&Frame1, &Frame2, &Frame4}) frame->Visible = false;
  Frame3.Top = kEdge;
  for (auto& [index, button] : btnOKCancel) button->Top = Frame3.Top + Frame3.Height + kEdge;
  Height = btnOKCancel(0).Top + btnOKCancel(0).Height + kEdge;
  Top = (gRuntime->ScreenHeight() - Height) / 2;
}

bool frmAcFilter::Confirm() {
  FilterCnd.clear();
  FilterTxt.clear();
  if (!AmtRangeOnly) {
    if (List2.SelCount() == 0) return RefuseAt(List2, "No book selected.", "W");
    TakeEntries();
  }
  TakeAmounts();
  FilterCnd += Debits().DebitCondition() + Credits().CreditCondition();
  AddAmountWords();
  return true;
}

void frmAcFilter::TakeEntries() {
  if (ChosenSide() == Side::kDebits) FilterCnd = " and a.dAmt>0";
  if (ChosenSide() == Side::kCredits) FilterCnd = " and a.dAmt<0";
  if (!AreAllBooksTicked()) FilterCnd += " and a.dBook in (" + books::SqlStrings(TickedItems(List2)) + ")";
  if (!Narration().empty()) FilterCnd += " and a.Narration like " + gStd->SqlString("%" + Narration() + "%");
  AddSideWords();
  AddBookWords();
  AddNarrationWords();
}

}  // namespace quillon
