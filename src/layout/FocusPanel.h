#pragma once

#include "host/controls/PictureBox.h"

namespace quillon {

/// A panel that takes the focus itself, so that no field has the arrow keys while an object is moved. Tab
/// passes it by.
class FocusPanel : public PictureBox {
 public:
  FocusPanel(Control& parent, std::string name) : PictureBox(parent, std::move(name)) { TabStop = false; }

  bool CanTakeFocus() const override { return true; }
};

}  // namespace quillon
