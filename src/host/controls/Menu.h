#pragma once

#include <string>
#include <vector>

#include "host/controls/Control.h"

namespace quillon {

/// A menu that pops up; its items are a control array of its own name in the forms that use it.
class Menu : public Control {
 public:
  using Control::Control;

  const char* Kind() const override { return "Menu"; }

  TextProperty Caption{*this, "Caption"};
  Event<int> Click;

  /// The captions of the items, in order, and the key of each by which a script may pick it; a menu may do
  /// without keys.
  std::vector<std::string> Items;
  std::vector<std::string> Keys;
};

}  // namespace quillon
