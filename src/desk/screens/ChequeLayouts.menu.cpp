#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine ChequeLayoutsMenu() {
  return {.Menu = "&Books",
          .Place = 40,
          .Key = "ChequeLayouts",
          .Caption = "Cheque La&youts",
          .FormKey = "chqprint",
          .DeskForm = "ChequeLayouts"};
}

}  // namespace quillon
