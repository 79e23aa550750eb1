#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine ChequeLeavesMenu() {
  return {.Menu = "&Books",
          .Place = 50,
          .Key = "ChequeLeaves",
          .Caption = "Cheque &Leaves …",
          .FormKey = "chqleaves"};
}

}  // namespace quillon
