#pragma once

#include "host/controls/Control.h"

namespace quillon {

/// One of a group: choosing it clears the others of its container.
class OptionButton : public Control {
 public:
  using Control::Control;

  const char* Kind() const override { return "OptionButton"; }

  TextProperty Caption{*this, "Caption"};
  Property<bool> Chosen{*this, "Value"};
  Event<> Click;

  bool CanTakeFocus() const override { return true; }
  bool HandleKey(const KeyEvent& key) override;
  void UserClick() override;

 protected:
  void PropertyChanged(const PropertyBase& property) override;
};

}  // namespace quillon
