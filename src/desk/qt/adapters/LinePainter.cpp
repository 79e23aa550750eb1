#include "desk/qt/adapters/LinePainter.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double kLineOfFont = 1.2;

/// The lines that the text needs in the width.
QStringList Wrapped(const QString& text, const QFont& font, int width) {
  QStringList lines;
  QTextLayout layout(text, font);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    lines << text.mid(line.textStart(), line.textLength());
  }
  layout.endLayout();
  return lines.isEmpty() ? QStringList{QString()} : lines;
}

}  // namespace

int LinePainter::LineHeight(const QFont& font) {
  const int needed = static_cast<int>(std::ceil(QFontInfo(font).pixelSize() * kLineOfFont));
  return std::max(QFontMetrics(font).lineSpacing(), needed);
}

void LinePainter::Draw(QPainter& painter, const QRect& place, Qt::Alignment across, const QString& text,
                       bool wraps) {
  const QFont font = painter.font();
  const QFontMetrics metrics(font);
  const int height = LineHeight(font);
  painter.save();
  painter.setClipRect(place, Qt::IntersectClip);
  QRect line(place.left(), place.top(), place.width(), height);
  for (const QString& whole : text.split(QLatin1Char('\n'))) {
    const QString plain = QString(whole).remove(QLatin1Char('\r'));
    for (const QString& part : wraps ? Wrapped(plain, font, place.width()) : QStringList{plain}) {
      const QString shown = wraps ? part : metrics.elidedText(part, Qt::ElideRight, place.width());
      painter.drawText(line, static_cast<int>(across | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
      line.translate(0, height);
      if (line.top() > place.bottom()) break;
    }
  }
  painter.restore();
}

}  // namespace quillon
