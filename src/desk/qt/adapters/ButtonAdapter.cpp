#include "desk/qt/adapters/ButtonAdapter.h"

#include "desk/qt/adapters/PushButton.h"

namespace quillon {

ButtonAdapter::ButtonAdapter(CommandButton& model, QWidget* parent)
    : Adapter(model, new PushButton(parent)), button_(model) {
  TakeClicks();
}

/// A letter may be marked by "&", which is not drawn: the button has its function key.
void ButtonAdapter::Draw() {
  QString caption = QString::fromStdString(button_.Caption);
  const qsizetype mark = caption.indexOf(QLatin1Char('&'));
  if (mark >= 0 && mark + 1 < caption.size() && caption[mark + 1].isLetter()) caption.remove(mark, 1);
  static_cast<PushButton&>(Widget()).SetCaption(caption);
}

void ButtonAdapter::Settle() { static_cast<PushButton&>(Widget()).SetFocused(button_.HasFocus()); }

void ButtonAdapter::Pressed(bool down) { static_cast<PushButton&>(Widget()).setDown(down); }

}  // namespace quillon
