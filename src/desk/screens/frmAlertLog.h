#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/controls/CGridPlus.h"
#include "host/controls/Label.h"
#include "host/forms/CAlertLog.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// The alert window: a heading, a list of lines, and Esc to close it.
class frmAlertLog : public DialogForm {
 public:
  frmAlertLog();

  /// The window behind the services' handle of it.
  static std::shared_ptr<CAlertLog> New();

  Label lblHeading;
  CGridPlus Grid;

 protected:
  void OnKeyDown(KeyEvent& key) override;

 private:
  void DesignControls();
};

}  // namespace quillon
