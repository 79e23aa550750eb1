#pragma once

#include <memory>

#include "host/data/CDataSet.h"
#include "reconciliation/WorkbenchAccount.h"

namespace quillon {

class CAlertLog;

/// The contra entries of the account's period, which interest leaves out, in an alert window of their own.
class ContraEntries {
 public:
  explicit ContraEntries(WorkbenchAccount& account) : account_(account) {}
  ContraEntries(const ContraEntries&) = delete;
  ContraEntries& operator=(const ContraEntries&) = delete;
  ~ContraEntries();

  /// Shows what there is and waits until the user has seen it; false when the entries do not take each other
  /// out, for then the balances without them would be wrong.
  bool Check();

  /// True when the window is up already.
  bool BringToFront();
  void Close();

 private:
  void ErrorLog(const CDataSet& entry);
  void ShowLog();
  void mErrLog_GridRowDblClick(int row);

  WorkbenchAccount& account_;
  std::shared_ptr<CAlertLog> mErrLog;  // while it is on the screen
};

}  // namespace quillon
