#include "desk/screens/AccountTool.h"
#include "desk/screens/frmAccount.h"
#include "host/services/IApp.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"

namespace quillon {

namespace {

constexpr std::int64_t kBankGroup = 47;

void OpenLeaves(frmAccount& statement) {
  const std::string account = std::to_string(statement.AccountCode);
  const Variant group = gSession->MainDb().Lookup("FAMaster", "mbshno", "mcd=" + account);
  if (group.ToInteger() != kBankGroup) {
    gStd->MsgBox("Only a bank account has cheque leaves.", "", "W");
    return;
  }
  const FormPtr leaves = statement.ModuleScreen("chqleaves");
  if (!leaves) return;
  leaves->Set("BankCode", statement.AccountCode);
  gApp->ShowForm(leaves);
}

}  // namespace

AccountTool ChequeLeavesTool() { return {20, "ChequeLeaves", "Cheque Leaves", OpenLeaves}; }

}  // namespace quillon
