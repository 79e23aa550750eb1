#include "desk/qt/adapters/ElidedLabel.h"

#include <QPainter>

#include "desk/qt/adapters/LinePainter.h"

namespace quillon {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ElidedLabel::paintEvent(QPaintEvent* event) {
  const bool lines = wordWrap() || text().contains(QLatin1Char('\n'));
  if (!lines && fontMetrics().horizontalAdvance(text()) <= width()) {
    QLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  if (lines) {
    LinePainter::Draw(painter, rect(), alignment() & Qt::AlignHorizontal_Mask, text(), wordWrap());
    return;
  }
  painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace quillon
