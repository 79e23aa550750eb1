#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/TextBox.h"

namespace quillon {

/// Shows a TextBox of one line.
class TextBoxAdapter : public Adapter {
 public:
  TextBoxAdapter(TextBox& model, QWidget* parent);

  void Settle() override { Draw(); }

 protected:
  void Draw() override;
};

}  // namespace quillon
