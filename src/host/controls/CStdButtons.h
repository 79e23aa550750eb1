#pragma once

#include <array>

#include "host/controls/Control.h"

namespace quillon {

/// The small strip of standard buttons at the window's corner: 0 help, 1 configuration, 2 Exit.
class CStdButtons : public Control {
 public:
  static constexpr int kHelp = 0;
  static constexpr int kConfigure = 1;
  static constexpr int kExit = 2;
  static constexpr int kCount = 3;

  explicit CStdButtons(Control& parent, std::string name = "QuillonStdButtons1", int index = kNoIndex)
      : Control(parent, std::move(name), index) {}

  const char* Kind() const override { return "CStdButtons"; }

  /// Whether the form answers the configuration button; without it a person has none to press.
  Property<bool> HasConfiguration{*this, "HasConfiguration"};

  class Button {
   public:
    Button(CStdButtons& strip, int index) : strip_(strip), index_(index) {}
    void Click() { strip_.Press(index_); }

   private:
    CStdButtons& strip_;
    int index_;
  };

  /// Throws SubscriptError outside 0 to 2.
  Button Buttons(int index);

  /// Cancel set to true stops what the button does by itself: the help is shown, the form is closed.
  Event<int, bool&> ButtonClick;

  void UserPress(int index);

 private:
  void Press(int index);
};

}  // namespace quillon
