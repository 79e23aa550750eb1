#include "desk/qt/adapters/LinePainter.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <QtMath>
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

/// Not rounded to dots: over several lines they stand as far apart as on paper.
double ExactHeight(const QFont& font) {
  return std::max(QFontMetricsF(font).lineSpacing(), QFontInfo(font).pixelSize() * kLineOfFont);
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
  const double height = ExactHeight(font);
  double top = place.top();
  painter.save();
  painter.setClipRect(place, Qt::IntersectClip);
  for (const QString& whole : text.split(QLatin1Char('\n'))) {
    const QString plain = QString(whole).remove(QLatin1Char('\r'));
    for (const QString& part : wraps ? Wrapped(plain, font, place.width()) : QStringList{plain}) {
      const QString shown = wraps ? part : metrics.elidedText(part, Qt::ElideRight, place.width());
      const QRect line(place.left(), qRound(top), place.width(), qCeil(height));
      painter.drawText(line, static_cast<int>(across | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
      top += height;
      if (top > place.bottom()) break;
    }
  }
  painter.restore();
}

}  // namespace quillon
