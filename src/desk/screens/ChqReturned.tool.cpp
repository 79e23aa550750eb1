#include "desk/screens/AccountTool.h"
#include "desk/screens/frmAccount.h"

namespace quillon {

AccountTool ChqReturnedTool() {
  return {10, "ChqReturned", "Chq. Returned", [](frmAccount& statement) {
            if (const FormPtr report = statement.ModuleScreen("chqretreport"))
              statement.ShowForPeriod(*report);
          }};
}

}  // namespace quillon
