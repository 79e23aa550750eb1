#include "desk/screens/AccountTool.h"
#include "desk/screens/BulkWork.h"

namespace quillon {

AccountTool MassTransferTool() {
  return {80, "MassTransfer", "Mass Transfer", [](frmAccount& statement) {
            OpenBulkWork(statement, "acmasstransfer", "Mass Transfer", "bulk.masstransfer");
          }};
}

}  // namespace quillon
