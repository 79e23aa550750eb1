#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/TextBox.h"

namespace quillon {

/// Shows a TextBox of several lines.
class TextAreaAdapter : public Adapter {
 public:
  TextAreaAdapter(TextBox& model, QWidget* parent);

  void Settle() override { Draw(); }

 protected:
  void Draw() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TellCaret();

  TextBox& box_;
};

}  // namespace quillon
