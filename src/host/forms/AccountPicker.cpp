#include "host/forms/AccountPicker.h"

#include "host/controls/CSelGrid.h"
#include "host/controls/Label.h"
#include "host/forms/Runtime.h"
#include "host/services/IApp.h"
#include "host/services/IStd.h"

namespace quillon {

std::optional<PickedAccount> PickAccount(Form& owner, const AccountQuestion& question) {
  const FormPtr picker = gApp->MainModule().GetForm("SelectAc");
  picker->CallingForm = owner.Self();
  picker->Set("SelectAc", true);
  picker->Set("Cnd", question.Condition);
  picker->Set("TblName", question.Table);
  picker->Set("SelQry", question.Query);
  picker->Set("ColWidth2", question.HeadWidth);
  if (!question.Title.empty()) {
    dynamic_cast<Label&>(picker->ControlAt("lblTitle")).Caption = question.Title;
  }
  if (!question.ListTitle.empty()) {
    dynamic_cast<CSelGrid&>(picker->ControlAt("SelGrid1")).Title.Caption = question.ListTitle;
  }
  gStd->ShowDialog(picker, owner.Self());
  std::optional<PickedAccount> picked;
  if (picker->Get("Modify").ToFlag()) {
    picked = {static_cast<long>(picker->Get("ModifyCode").ToInteger()), picker->Get("modifytxt").ToText()};
  }
  gRuntime->Unload(*picker);
  return picked;
}

}  // namespace quillon
