#pragma once

#include <cstdint>

#include "host/controls/CSelGrid.h"
#include "host/controls/CTextPlus.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// A new account in the open year: its head, station and group. Accounts whose heads begin alike are shown
/// before.
class frmNewAccount : public DialogForm {
 public:
  frmNewAccount();

  /// The account that was added.
  std::int64_t AccountCode = 0;

  CTextPlus txpHead;
  CTextPlus txpStation;
  CTextPlus txpGroup;
  CSelGrid SelGrid1;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;

 private:
  bool CheckGroup();
  bool IsNewHead();
  void Store();
};

}  // namespace quillon
