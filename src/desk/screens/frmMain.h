#pragma once

#include "host/controls/Label.h"
#include "host/forms/Form.h"

namespace quillon {

/// The host's main form: what a screen from the main menu has as its caller.
class frmMain : public Form {
 public:
  frmMain();

  Label lblTitle;
};

}  // namespace quillon
