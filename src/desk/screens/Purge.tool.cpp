#include "desk/screens/AccountTool.h"
#include "desk/screens/BulkWork.h"

namespace quillon {

AccountTool PurgeTool() {
  return {70, "Purge", "Purge",
          [](frmAccount& statement) { OpenBulkWork(statement, "acmassdelete2", "Purge", "bulk.purge"); }};
}

}  // namespace quillon
