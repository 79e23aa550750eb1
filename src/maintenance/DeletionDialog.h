#pragma once

#include <cstdint>
#include <string>

#include "host/controls/CTextPlus.h"
#include "host/controls/Frame.h"
#include "host/controls/TextBox.h"
#include "host/data/CDataSet.h"
#include "host/data/CDbLink.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// What the two dialogs have in common that delete entries of one account: the account, never the cash
/// account, and what becomes of a failure.
class DeletionDialog : public DialogForm {
 public:
  /// Set before the form is shown.
  std::int32_t AcCode = 0;

  Frame Frame1;
  TextBox Text1;  ///< the account's name; its Tag is the code
  ControlArray<CButton>& Command2 = btnOKCancel;

 protected:
  DeletionDialog(const char* className, const char* caption, long height);

  /// OK: true when a run has gone through.
  virtual bool Delete() = 0;

  /// The field that the user begins in.
  virtual CTextPlus& FirstField() = 0;

  static bool Confirmed();

  /// The entries of the account that meet the condition. They stay readable while they are deleted.
  CDataSet Entries(const std::string& condition) const;
  static CDbLink& Db();

  /// The voucher's document; 0 for none.
  static std::int64_t DocumentOf(std::int64_t voucher);

  void LoadDialog() override;
  void OnActivate() override;
  bool Confirm() override;
};

}  // namespace quillon
