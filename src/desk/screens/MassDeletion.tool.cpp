#include "desk/screens/AccountTool.h"
#include "desk/screens/BulkWork.h"

namespace quillon {

AccountTool MassDeletionTool() {
  return {60, "MassDeletion", "Mass Deletion", [](frmAccount& statement) {
            OpenBulkWork(statement, "acmassdeletion", "Mass Deletion", "bulk.massdeletion");
          }};
}

}  // namespace quillon
