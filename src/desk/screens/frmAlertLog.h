#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/CAlertLog.h"
#include "host/CButton.h"
#include "host/CGridPlus.h"
#include "host/ControlArray.h"
#include "host/Form.h"
#include "host/Label.h"

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
