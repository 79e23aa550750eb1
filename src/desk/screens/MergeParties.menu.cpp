#include "desk/screens/BulkWork.h"
#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine MergePartiesMenu() {
  return {.Menu = "&Masters",
          .Place = 40,
          .Key = "MergeParties",
          .Caption = "Mer&ge Parties …",
          .RightKey = "bulk.mergeparties",
          .FormKey = "mergeparties",
          .Open = OpenMergeOfParties,
          .IsModal = true};
}

}  // namespace quillon
