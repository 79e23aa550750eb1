#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine MailMergeMenu() {
  return {.Menu = "&Masters",
          .Place = 30,
          .Key = "MailMerge",
          .Caption = "&Mail Merge",
          .RightKey = "mst.mailmerge",
          .FormKey = "mailmerge",
          .MenuEvent = "MailMerge"};
}

}  // namespace quillon
