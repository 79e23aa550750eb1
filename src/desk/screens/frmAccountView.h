#pragma once

#include <string>
#include <vector>

#include "host/CButton.h"
#include "host/CGridPlus.h"
#include "host/ControlArray.h"
#include "host/Form.h"

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
