#include "desk/qt/adapters/ButtonAdapter.h"

#include "desk/qt/adapters/PushButton.h"

namespace quillon {

ButtonAdapter::ButtonAdapter(CommandButton& model, QWidget* parent)
    : Adapter(model, new PushButton(parent)), button_(model) {
  TakeClicks();
}

void ButtonAdapter::Draw() {
  static_cast<PushButton&>(Widget()).SetCaption(QString::fromStdString(button_.Caption));
}

void ButtonAdapter::Settle() { static_cast<PushButton&>(Widget()).SetFocused(button_.HasFocus()); }

void ButtonAdapter::Pressed(bool down) { static_cast<PushButton&>(Widget()).setDown(down); }

}  // namespace quillon
