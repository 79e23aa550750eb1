#include "entry/frmAcFilter2.h"

#include "host/forms/Fields.h"
#include "host/services/IStd.h"

namespace quillon {

namespace {

constexpr long kTop = 660;

}  // namespace

frmAcFilter2::frmAcFilter2()
    : StatementFilter("frmAcFilter2", false, kTop), txpDate1(*this, "txpDate1"), txpDate2(*this, "txpDate2") {
  Member("Date1", Date1);
  Member("Date2", Date2);
  Member("FilterTrn", FilterTrn);
  Member("FilterBook", FilterBook);
  Member("FilterNar", FilterNar);
  MakeDateField(txpDate1);
  MakeDateField(txpDate2);
  txpDate1.Caption = "Period: From";
  txpDate1.LabelWidth = 1320;
  txpDate1.Move(kEdge, kEdge, 3240, kLine);
  txpDate2.Caption = "To";
  txpDate2.LabelWidth = 480;
  txpDate2.Move(kEdge + 3420, kEdge, 2400, kLine);
}

void frmAcFilter2::LoadDialog() {
  FillBooks();
  txpDate1.Text = Date1.Text();
  txpDate2.Text = Date2.Text();
}

/// A key presses OK without leaving the field, so that the dates are looked at here too.
bool frmAcFilter2::Confirm() {
  for (CTextPlus* field : {&txpDate1, &txpDate2}) {
    if (field->MayLeave()) continue;
    field->SetFocus();
    return false;
  }
  Date1 = DateOf(txpDate1);
  Date2 = DateOf(txpDate2);
  FilterTrn = ChosenSide() == Side::kDebits ? "Dr" : ChosenSide() == Side::kCredits ? "Cr" : "";
  FilterBook.clear();
  if (!AreAllBooksTicked()) {
    for (const std::string& book : TickedItems(List2)) FilterBook += "*" + book;
    FilterBook += "*";
  }
  FilterNar = Narration();
  TakeAmounts();
  FilterTxt.clear();
  AddSideWords();
  AddBookWords();
  AddNarrationWords();
  AddAmountWords();
  return true;
}

bool frmAcFilter2::IsOpen() const {
  return FilterTrn.empty() && FilterBook.empty() && FilterNar.empty() && Debits().IsOpen() &&
         Credits().IsOpen();
}

}  // namespace quillon
