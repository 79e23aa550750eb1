#pragma once

#include "host/controls/Control.h"

namespace quillon {

/// A titled group of controls.
class Frame : public Control {
 public:
  using Control::Control;

  const char* Kind() const override { return "Frame"; }

  TextProperty Caption{*this, "Caption"};
};

}  // namespace quillon
