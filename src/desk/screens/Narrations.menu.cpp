#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine NarrationsMenu() {
  return {.Menu = "&Masters",
          .Place = 50,
          .Key = "Narrations",
          .Caption = "Standard &Narrations",
          .FormKey = "narrations"};
}

}  // namespace quillon
