#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine DataFormsMenu() {
  return {.Menu = "&Masters",
          .Place = 60,
          .Key = "DataForms",
          .Caption = "&Data Forms …",
          .FormKey = "dataformsetup",
          .IsModal = true};
}

}  // namespace quillon
