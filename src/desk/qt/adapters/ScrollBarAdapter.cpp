#include "desk/qt/adapters/ScrollBarAdapter.h"

#include <QScrollBar>

#include "desk/qt/adapters/Acts.h"

namespace quillon {

ScrollBarAdapter::ScrollBarAdapter(ScrollBar& model, QWidget* parent)
    : Adapter(model, new QScrollBar(parent)), bar_(model) {
  auto& shown = static_cast<QScrollBar&>(Widget());
  connect(&shown, &QScrollBar::valueChanged, this, [this](int value) {
    if (value == bar_.Position) return;
    Acts::Run([&] { bar_.UserScroll(value); });
    Draw();
  });
}

void ScrollBarAdapter::Draw() {
  auto& shown = static_cast<QScrollBar&>(Widget());
  const QSignalBlocker quiet(&shown);
  shown.setOrientation(bar_.Vertical ? Qt::Vertical : Qt::Horizontal);
  shown.setRange(bar_.Min, bar_.Max);
  shown.setPageStep(bar_.LargeChange);
  shown.setValue(bar_.Position);
}

}  // namespace quillon
