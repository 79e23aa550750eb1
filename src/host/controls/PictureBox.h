#pragma once

#include "host/controls/Surface.h"

namespace quillon {

/// A surface that holds other controls; may be clicked.
class PictureBox : public Surface {
 public:
  using Surface::Surface;

  const char* Kind() const override { return "PictureBox"; }

  Property<int> BorderStyle{*this, "BorderStyle", 1};
  Event<> Click;

  bool CanTakeFocus() const override { return false; }
  void UserClick() override {
    RequireReachable();
    Click.Raise();
  }
};

}  // namespace quillon
