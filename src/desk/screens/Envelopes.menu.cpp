#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine EnvelopesMenu() {
  return {.Menu = "&Masters",
          .Place = 20,
          .Key = "Envelopes",
          .Caption = "&Envelopes",
          .RightKey = "mst.envelopes",
          .FormKey = "envelopeprint",
          .MenuEvent = "Envelopes"};
}

}  // namespace quillon
