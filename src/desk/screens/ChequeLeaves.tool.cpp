#include "desk/screens/AccountTool.h"
#include "desk/screens/frmAccount.h"
#include "host/services/IApp.h"

namespace quillon {

namespace {

void OpenLeaves(frmAccount& statement) {
  if (!statement.RequireBankAccount()) return;
  const FormPtr leaves = statement.ModuleScreen("chqleaves");
  if (!leaves) return;
  leaves->Set("BankCode", statement.AccountCode);
  gApp->ShowForm(leaves);
}

}  // namespace

AccountTool ChequeLeavesTool() { return {20, "ChequeLeaves", "Cheque Leaves", OpenLeaves}; }

}  // namespace quillon
