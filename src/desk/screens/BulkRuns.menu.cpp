#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine BulkRunsMenu() {
  return {.Menu = "&Books",
          .Place = 60,
          .Key = "BulkRuns",
          .Caption = "&Bulk Work",
          .RightKey = "bulk.journal",
          .FormKey = "mergeparties",
          .DeskForm = "BulkRuns"};
}

}  // namespace quillon
