#pragma once

#include "host/forms/ListScreen.h"

namespace quillon {

/// "Cheque Issue Register": the frame of a register that has no figures of its own yet; a host that keeps
/// them fills its grid.
class frmChqIssueReg2 : public ListScreen {
 public:
  frmChqIssueReg2();

  /// The columns of the register.
  void SetupGrid();

  Label lblTitle2;

 protected:
  void BuildBar() override {}
  void LoadScreen() override;
  void FirstShow() override;
};

}  // namespace quillon
