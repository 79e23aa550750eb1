#pragma once

#include "host/controls/Control.h"

namespace quillon {

/// A text on a form; may be clicked, and moved by its form.
class Label : public Control {
 public:
  using Control::Control;

  const char* Kind() const override { return "Label"; }

  TextProperty Caption{*this, "Caption"};

  /// 0 left, 1 right, 2 centre.
  Property<int> Alignment{*this, "Alignment"};
  Property<bool> WordWrap{*this, "WordWrap"};

  /// The text stands at the label's top, where it is printed, and not in its middle.
  Property<bool> FromTop{*this, "FromTop"};

  Event<> Click;
  Event<> DblClick;

  void UserClick() override {
    RequireReachable();
    Click.Raise();
  }
  void UserDoubleClick() override {
    RequireReachable();
    DblClick.Raise();
  }
};

}  // namespace quillon
