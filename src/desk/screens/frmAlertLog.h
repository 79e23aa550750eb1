#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/controls/CButton.h"
#include "host/controls/CGridPlus.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Label.h"
#include "host/forms/CAlertLog.h"
#include "host/forms/Form.h"

namespace quillon {

/// The alert window: a heading, a list of lines, and Esc to close it.
class frmAlertLog : public quillon::Form {
 public:
  frmAlertLog();

  /// The window behind the services' handle of it.
  static std::shared_ptr<CAlertLog> New();

  Label lblHeading;
  CGridPlus Grid;
  ControlArray<CButton> btnOKCancel;

 protected:
  void OnKeyDown(KeyEvent& key) override;
};

}  // namespace quillon
