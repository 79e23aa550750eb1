#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine ParametersMenu() {
  return {.Menu = "&Firm",
          .Place = 10,
          .Key = "Parameters",
          .Caption = "Pa&rameters …",
          .RightKey = "firm.parameters",
          .DeskForm = "Parameters",
          .IsModal = true};
}

}  // namespace quillon
