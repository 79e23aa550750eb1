#include "host/controls/CStdButtons.h"

#include "host/forms/Form.h"
#include "host/forms/Runtime.h"

namespace quillon {

CStdButtons::Button CStdButtons::Buttons(int index) {
  if (index < 0 || index >= kCount) throw SubscriptError(Name() + " button " + std::to_string(index));
  return {*this, index};
}

void CStdButtons::UserPress(int index) {
  RequireReachable();
  if (index < 0 || index >= kCount) throw Refused(Name() + " has no button " + std::to_string(index));
  if (index == kConfigure && !HasConfiguration) throw Refused(Name() + " has no configuration");
  Buttons(index).Click();
}

void CStdButtons::Press(int index) {
  const FormPtr alive = OwnerForm().Self();
  bool cancel = false;
  ButtonClick.Raise(index, cancel);
  if (cancel || !alive->IsLoaded()) return;
  if (index == kHelp) gRuntime->ShowHelp(*alive, alive->HelpContext);
  if (index == kExit) gRuntime->Unload(*alive);
}

}  // namespace quillon
