#include "host/controls/OptionButton.h"

#include "host/forms/Form.h"

namespace quillon {

bool OptionButton::HandleKey(const KeyEvent& key) {
  if (key.KeyCode != keys::kSpace || key.Shift != 0) return false;
  Chosen = true;
  return true;
}

void OptionButton::UserClick() {
  RequireReachable();
  if (OwnerForm().UserFocus(*this)) Chosen = true;
}

void OptionButton::PropertyChanged(const PropertyBase& property) {
  Control::PropertyChanged(property);
  if (&property != &Chosen || !Chosen) return;
  for (Control* sibling : Parent()->Children()) {
    auto* option = dynamic_cast<OptionButton*>(sibling);
    if (option != nullptr && option != this) option->Chosen = false;
  }
  Click.Raise();
}

}  // namespace quillon
