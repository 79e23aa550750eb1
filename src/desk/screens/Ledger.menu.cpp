#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine LedgerMenu() {
  return {.Menu = "&Books",
          .Place = 20,
          .Key = "Ledger",
          .Caption = "Led&ger …",
          .FormKey = "ledgerindex",
          .DeskForm = "Ledger"};
}

}  // namespace quillon
