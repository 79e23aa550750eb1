#include "host/controls/CheckBox.h"

#include "host/forms/Form.h"

namespace quillon {

bool CheckBox::HandleKey(const KeyEvent& key) {
  if (key.KeyCode != keys::kSpace || key.Shift != 0) return false;
  CheckValue = CheckValue == 0 ? 1 : 0;
  return true;
}

void CheckBox::UserClick() {
  RequireReachable();
  if (OwnerForm().UserFocus(*this)) CheckValue = CheckValue == 0 ? 1 : 0;
}

void CheckBox::UserCheck(bool on) {
  if (on == (CheckValue != 0)) {
    RequireReachable();
  } else {
    UserClick();
  }
}

void CheckBox::PropertyChanged(const PropertyBase& property) {
  Control::PropertyChanged(property);
  if (&property == &CheckValue) Click.Raise();
}

}  // namespace quillon
