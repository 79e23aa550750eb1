#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine UsersMenu() {
  return {.Menu = "&Firm",
          .Place = 20,
          .Key = "Users",
          .Caption = "Users and Ri&ghts …",
          .RightKey = "firm.users",
          .DeskForm = "Users",
          .IsModal = true};
}

}  // namespace quillon
