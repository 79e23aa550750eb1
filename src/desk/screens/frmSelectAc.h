#pragma once

#include <string>

#include "host/controls/CSelGrid.h"
#include "host/controls/CTextPlus.h"
#include "host/controls/Label.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// The account picker. The caller sets what to list and reads the pick back.
class frmSelectAc : public DialogForm {
 public:
  frmSelectAc();

  bool SelectAc = false;  ///< asked for by callers that only pick

  /// A further condition on the accounts, in terms of FAMaster's columns; empty lists all in use.
  std::string Cnd;
  std::string TblName;

  /// The head's width in characters.
  int ColWidth2 = 30;

  /// The whole query, whose first column is shown and whose second is the code; empty leaves the picker's
  /// own.
  std::string SelQry;

  /// The answer: picked or not, the account's code and its head.
  bool Modify = false;
  long ModifyCode = 0;
  std::string modifytxt;

  Label lblTitle;
  CTextPlus txpAccount;
  CSelGrid SelGrid1;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;

 private:
  void DesignControls();
  void TellNotFound(const std::string& typed);
  void Take();
};

}  // namespace quillon
