#include "maintenance/frmAcMassDeletion.h"

namespace quillon {

void frmAcMassDeletion::DesignControls() {
  HelpContext = 5;
  const long left = Frame1.Left;
  const long top = Frame1.Top + Frame1.Height + 90;
  const long height = Dates.Place(left, top, Frame1.Width);
  Frame3.Move(left, top + height + 90, Frame1.Width, 720);
  const char* const sides[] = {"Debit Entries Only", "Credit Entries Only", "Both"};
  const long places[] = {180, 2430, 4800};
  for (auto& [index, option] : Option1) {
    option->Caption = sides[index];
    option->Move(places[index], 240, index == 2 ? 1320 : 2190, 360);
  }
  Option1(2).Chosen = true;
  Label1.Caption = "Only Cash Entries will be deleted.";
  Label1.Move(left, Frame3.Top + Frame3.Height + 90, Frame1.Width, 360);
}

}  // namespace quillon
