#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine DayBookMenu() {
  return {.Menu = "&Books",
          .Place = 15,
          .Key = "DayBook",
          .Caption = "&Day Book",
          .FormKey = "filterzoomold",
          .DeskForm = "DayBook"};
}

}  // namespace quillon
