#pragma once

#include "host/controls/CGridPlus.h"
#include "host/forms/ScreenForm.h"

namespace quillon {

/// "Cheque Issue Register": the frame of a register that has no figures of its own yet; a host that keeps
/// them fills its grid.
class frmChqIssueReg2 : public ScreenForm {
 public:
  frmChqIssueReg2();

  /// The columns of the register.
  void SetupGrid();

  Label lblTitle2;
  CGridPlus Grid;

 protected:
  void BuildBar() override {}
  void LoadScreen() override;
  void FirstShow() override;
  void ButtonPressed(int /*index*/) override {}
  GridModel* MainGrid() override { return &Grid; }
};

}  // namespace quillon
