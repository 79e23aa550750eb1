#include "desk/screens/BulkWork.h"

#include "desk/screens/frmAccount.h"
#include "host/services/host_services.h"

namespace quillon {

void OpenBulkWork(frmAccount& statement, const std::string& form, const std::string& right) {
  bool denied = true;
  gApp->CheckRight(right, "N", denied);
  if (denied) return;
  // The rows of the other screen would go on naming entries that are gone.
  if (!statement.RequireNothingStandsOnIt()) return;
  const FormPtr dialog = statement.ModuleScreen(form);
  if (!dialog) return;
  dialog->Set("AcCode", statement.AccountCode);
  gStd->ShowDialog(dialog, statement.Self());
}

}  // namespace quillon
