#include "desk/screens/DeskScreens.h"

#include "desk/screens/frmAccount.h"
#include "desk/screens/frmAccountView.h"
#include "desk/screens/frmAlertLog.h"
#include "desk/screens/frmBulkRuns.h"
#include "desk/screens/frmChequeLayouts.h"
#include "desk/screens/frmDayBook.h"
#include "desk/screens/frmFilterAc.h"
#include "desk/screens/frmLedger.h"
#include "desk/screens/frmMain.h"
#include "desk/screens/frmMainDB.h"
#include "desk/screens/frmParameters.h"
#include "desk/screens/frmPrinter.h"
#include "desk/screens/frmSelectAc.h"
#include "desk/screens/frmUsers.h"
#include "desk/screens/frmVoucher.h"
#include "desk/screens/frmVoucherEntry.h"
#include "host/values/Text.h"

namespace quillon {

FormPtr DeskScreens::NewForm(const std::string& key) {
  const std::string wanted = text::Lower(key);
  if (wanted == "account") return std::make_shared<frmAccount>();
  if (wanted == "selectac") return std::make_shared<frmSelectAc>();
  if (wanted == "filterac") return std::make_shared<frmFilterAc>();
  if (wanted == "daybook") return std::make_shared<frmDayBook>();
  if (wanted == "voucherentry") return std::make_shared<frmVoucherEntry>();
  if (wanted == "ledger") return std::make_shared<frmLedger>();
  if (wanted == "chequelayouts") return std::make_shared<frmChequeLayouts>();
  if (wanted == "bulkruns") return std::make_shared<frmBulkRuns>();
  if (wanted == "printer") return std::make_shared<frmPrinter>();
  if (wanted == "parameters") return std::make_shared<frmParameters>();
  if (wanted == "users") return std::make_shared<frmUsers>();
  if (wanted == "maindb") return std::make_shared<frmMainDB>();
  return nullptr;
}

FormPtr DeskScreens::MainForm() {
  if (!main_) main_ = std::make_shared<frmMain>();
  return main_;
}

std::shared_ptr<CAlertLog> DeskScreens::NewAlertLog() { return frmAlertLog::New(); }

FormPtr DeskScreens::NewVoucherView(std::int64_t voucherId, int startYear, std::int64_t accountCode) {
  auto view = std::make_shared<frmVoucher>();
  view->VoucherID = voucherId;
  view->StartYear = startYear;
  view->AccountCode = accountCode;
  return view;
}

FormPtr DeskScreens::NewAccountView(std::int64_t accountCode) {
  auto view = std::make_shared<frmAccountView>();
  view->AccountCode = accountCode;
  return view;
}

}  // namespace quillon
