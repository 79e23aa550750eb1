#pragma once

#include "host/controls/ComboBox.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Label.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// "Data Forms Configuration": the options of a data form, which its caller keeps.
class frmDataFormConfig : public DialogForm {
 public:
  frmDataFormConfig();

  /// The form that asks.
  FormPtr fDataForm;

  // Given in and read back: 1 is Yes, 0 is No, -1 does not apply to the kind of form.
  int AutoIncNar = 0;
  int DateCol = 0;  ///< 1: with every entry
  int BankCol = 0;
  int ClearDateCol = 0;
  int Agent = 0;
  int ApplyTCS = 0;
  int ApplyTDS = 0;
  int MemoEntry = 0;

  ControlArray<Label> Label1;
  ControlArray<ComboBox> Combo1;

 protected:
  void LoadDialog() override;
  bool Confirm() override;

 private:
  static constexpr int kRows = 7;

  void DesignControls();

  /// The member that a row edits.
  int& Option(int row);
};

}  // namespace quillon
