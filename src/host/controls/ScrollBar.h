#pragma once

#include <algorithm>

#include "host/controls/Control.h"

namespace quillon {

/// A scroll bar from Min to Max; Change comes when the position changes.
class ScrollBar : public Control {
 public:
  using Control::Control;

  const char* Kind() const override { return Vertical ? "VScrollBar" : "HScrollBar"; }

  Property<bool> Vertical{*this, "Vertical"};
  Property<int> Min{*this, "Min"};
  Property<int> Max{*this, "Max", 100};
  Property<int> LargeChange{*this, "LargeChange", 1};
  Property<int> Position{*this, "Value"};
  Event<> Change;

  bool CanTakeFocus() const override { return true; }
  void UserScroll(int value) {
    RequireReachable();
    Position = std::clamp(value, Min(), Max());
  }

 protected:
  void PropertyChanged(const PropertyBase& property) override {
    Control::PropertyChanged(property);
    if (&property == &Position) Change.Raise();
  }
};

}  // namespace quillon
