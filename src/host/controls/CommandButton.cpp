#include "host/controls/CommandButton.h"

#include "host/forms/Form.h"

namespace quillon {

bool CommandButton::HandleKey(const KeyEvent& key) {
  if (key.Shift != 0 || (key.KeyCode != keys::kEnter && key.KeyCode != keys::kSpace)) return false;
  Click.Raise();
  return true;
}

void CommandButton::UserClick() {
  RequireReachable();
  if (OwnerForm().UserFocus(*this)) Click.Raise();
}

}  // namespace quillon
