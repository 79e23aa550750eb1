#include "desk/screens/AccountTool.h"
#include "desk/screens/frmAccount.h"
#include "desk/screens/frmChequeRun.h"

namespace quillon {

namespace {

void OpenRun(frmAccount& statement) {
  if (!statement.RequireBankAccount()) return;
  const auto run = std::make_shared<frmChequeRun>();
  run->CallingForm = statement.Self();
  statement.ShowForPeriod(*run);
}

}  // namespace

AccountTool ChequeRunTool() { return {30, "ChequeRun", "Print Cheques", OpenRun}; }

}  // namespace quillon
