#pragma once

#include "host/controls/CommandButton.h"

namespace quillon {

/// A dialog button. In a pair, index 0 is OK ("F7: OK") and index 1 is Cancel ("Esc: Cancel").
class CButton : public CommandButton {
 public:
  CButton(Control& parent, std::string name, int index = kNoIndex)
      : CommandButton(parent, std::move(name), index) {
    IsCancel = index == 1;
  }

  const char* Kind() const override { return "CButton"; }

  /// Esc presses it.
  Property<bool> IsCancel{*this, "Cancel"};

  /// As by code: nobody is asked whether the focus may leave.
  void Press() {
    if (IsReachable()) Click.Raise();
  }
};

}  // namespace quillon
