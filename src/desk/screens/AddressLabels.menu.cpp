#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine AddressLabelsMenu() {
  return {.Menu = "&Masters",
          .Place = 10,
          .Key = "AddLabels",
          .Caption = "Address &Labels",
          .RightKey = "mst.labels",
          .FormKey = "addresslabels",
          .MenuEvent = "AddLabels"};
}

}  // namespace quillon
