#pragma once

#include "host/controls/Control.h"

namespace quillon {

/// A push button: a click, Enter and the space bar press it.
class CommandButton : public Control {
 public:
  using Control::Control;

  const char* Kind() const override { return "CommandButton"; }

  TextProperty Caption{*this, "Caption"};
  Event<> Click;

  bool CanTakeFocus() const override { return true; }
  bool KeepsEnter() const override { return true; }

  bool HandleKey(const KeyEvent& key) override;
  void UserClick() override;
};

}  // namespace quillon
