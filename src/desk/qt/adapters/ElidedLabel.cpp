#include "desk/qt/adapters/ElidedLabel.h"

#include <QPainter>

namespace quillon {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ElidedLabel::paintEvent(QPaintEvent* event) {
  if (wordWrap() || fontMetrics().horizontalAdvance(text()) <= width()) {
    QLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace quillon
