#include "desk/screens/frmAccount.h"

#include "host/services/AccountColumns.h"
#include "host/services/IStd.h"

namespace quillon {

namespace col = account_col;

void frmAccount::BuildBar() {
  BtnBar1.AddButtons({"Account,F2: Account,Customers", "Period,F3: Period,Date", "Marking,F4: Marking,Modify",
                      "Interest,F5: Interest,Interest", "Reconciliation,F6: Reconciliation,Report",
                      "Others,F7: Others,Expand", "Preview,F8: Preview,Preview", "Print,F9: Print,Print",
                      "Exit,Esc: Exit,Close"});
  others_ = AccountTools();
  mmOthers.Caption = "Others";
  mmOthers.Items.clear();
  mmOthers.Keys.clear();
  for (const AccountTool& tool : others_) {
    mmOthers.Items.emplace_back(tool.Caption);
    mmOthers.Keys.emplace_back(tool.Key);
  }
}

void frmAccount::DesignControls() {
  constexpr long kLine = 360;
  const long top = lblTitle.Top + lblTitle.Height;
  const long third = Width / 3;
  for (const int item : {0, 1, 2}) lblTitle1(item).Move(item * third, top, third, kLine);
  MStrip1.Move(0, top + kLine, Width / 2, kLine);
  lblTitle2.Move(Width / 2, top + kLine, Width / 2, kLine);
  PlaceGrid(top + 2 * kLine);
}

void frmAccount::SetColumns() {
  Grid.Rows = 1;
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  SetColumnsInChars(Grid, {
                              {col::kSerial, "S.No.", 7, kAlignRight},
                              {col::kDate, "Date", 13, kAlignLeft},
                              {col::kBook, "Book", 6, kAlignCentre},
                              {col::kVchNo, "Vch. No.", 10, kAlignLeft},
                              {col::kNarration, "Narration", 56, kAlignLeft},
                              {col::kDebit, "Debit", 17, kAlignRight},
                              {col::kCredit, "Credit", 17, kAlignRight},
                              {col::kBalance, "Balance", 20, kAlignRight},
                          });
}

}  // namespace quillon
