#pragma once

#include <string>
#include <vector>

#include "host/controls/CButton.h"
#include "host/controls/CGridPlus.h"
#include "host/controls/ControlArray.h"
#include "host/forms/Form.h"

namespace quillon {

/// The master record of an account, to read.
class frmAccountView : public Form {
 public:
  frmAccountView();

  std::int64_t AccountCode = 0;

  CGridPlus Grid;
  ControlArray<CButton> btnOKCancel;

 protected:
  void OnLoad() override;
};

}  // namespace quillon
