#pragma once

#include "host/controls/Control.h"

namespace quillon {

/// A box that is ticked (1) or not (0); Click comes when the value changes, by code too.
class CheckBox : public Control {
 public:
  using Control::Control;

  const char* Kind() const override { return "CheckBox"; }

  TextProperty Caption{*this, "Caption"};
  Property<int> CheckValue{*this, "Value"};
  Event<> Click;

  bool CanTakeFocus() const override { return true; }
  bool HandleKey(const KeyEvent& key) override;
  void UserClick() override;
  void UserCheck(bool on);

 protected:
  void PropertyChanged(const PropertyBase& property) override;
};

}  // namespace quillon
