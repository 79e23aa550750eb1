#pragma once

#include <string>
#include <vector>

#include "host/controls/CGridPlus.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// The master record of an account, to read.
class frmAccountView : public DialogForm {
 public:
  frmAccountView();

  std::int64_t AccountCode = 0;

  CGridPlus Grid;

 protected:
  void LoadDialog() override;

 private:
  void DesignControls();
  void SetColumns();
};

}  // namespace quillon
