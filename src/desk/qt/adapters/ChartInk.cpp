#include "desk/qt/adapters/ChartInk.h"

#include <QPainter>
#include <cmath>

#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr double kNarrowest = 4;  // that shows one
constexpr double kMark = 3.5;

/// The lines of a pattern over a rectangle, each a run along and across.
struct Hatch {
  double across;
  double down;
};

void DrawHatch(QPainter& painter, const QRectF& box, const Hatch& hatch, double gap) {
  const double reach = box.width() + box.height();
  if (hatch.across == 0) {  // upright
    for (double x = box.left() + gap / 2; x < box.right(); x += gap)
      painter.drawLine(QPointF(x, box.top()), QPointF(x, box.bottom()));
    return;
  }
  if (hatch.down == 0) {  // level
    for (double y = box.bottom() - gap / 2; y > box.top(); y -= gap)
      painter.drawLine(QPointF(box.left(), y), QPointF(box.right(), y));
    return;
  }
  const double start = hatch.down > 0 ? box.top() : box.bottom();
  const double slant = gap * std::sqrt(2.0);
  for (double x = box.left() - box.height(); x < box.left() + reach; x += slant)
    painter.drawLine(QPointF(x, start), QPointF(x + box.height(), start + hatch.down * box.height()));
}

/// The lines over a series, how far apart they are and how broad.
struct Pattern {
  std::vector<Hatch> Lines;
  double Gap = 6;
  double Breadth = 1;
};

/// Twelve of them, as many as a year has months.
Pattern PatternOf(int series) {
  switch ((series - 1) % 12) {
    case 1:
      return {{{1, -1}}};
    case 2:
      return {{{1, 0}}};
    case 3:
      return {{{1, 1}}};
    case 4:
      return {{{1, -1}, {1, 1}}};
    case 5:
      return {{{0, 1}}};
    case 6:
      return {{{1, 0}, {0, 1}}};
    case 7:
      return {{{1, -1}}, 10, 3};
    case 8:
      return {{{1, 0}}, 10, 3};
    case 9:
      return {{{1, 1}}, 10, 3};
    case 10:
      return {{{1, -1}, {1, 1}}, 10, 2};
    case 11:
      return {{{0, 1}}, 10, 3};
    default:
      return {};
  }
}

}  // namespace

QColor ChartInk::Contrast(const QColor& color) {
  constexpr int kLight = 140;
  return qGray(color.rgb()) > kLight ? Theme::Text() : Theme::Surface();
}

void ChartInk::Fill(QPainter& painter, const QPainterPath& area, const QColor& color, int series,
                    double unit) {
  painter.fillPath(area, color);
  const QRectF box = area.boundingRect();
  const Pattern pattern = PatternOf(series);
  if (pattern.Lines.empty() || std::min(box.width(), box.height()) < kNarrowest * unit) return;
  painter.save();
  painter.setClipPath(area, Qt::IntersectClip);
  painter.setPen(QPen(Contrast(color), pattern.Breadth * unit));
  for (const Hatch& hatch : pattern.Lines) DrawHatch(painter, box, hatch, pattern.Gap * unit);
  painter.restore();
}

QPen ChartInk::Line(const QColor& color, int series, double unit) {
  constexpr Qt::PenStyle kStyles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                      Qt::DashDotDotLine};
  const auto style = static_cast<std::size_t>(series - 1) % std::size(kStyles);
  return {color, 2 * unit, kStyles[style], Qt::FlatCap, Qt::RoundJoin};
}

void ChartInk::Mark(QPainter& painter, const QPointF& place, const QColor& color, int series, double unit) {
  const double half = kMark * unit;
  painter.setPen(QPen(color.darker(), unit));
  painter.setBrush(color);
  switch ((series - 1) % 4) {
    case 0:
      painter.drawEllipse(place, half, half);
      break;
    case 1:
      painter.drawRect(QRectF(place.x() - half, place.y() - half, 2 * half, 2 * half));
      break;
    case 2:
      painter.drawPolygon(
          QPolygonF{place + QPointF(0, -half), place + QPointF(half, half), place + QPointF(-half, half)});
      break;
    default:
      painter.drawPolygon(QPolygonF{place + QPointF(0, -half), place + QPointF(half, 0),
                                    place + QPointF(0, half), place + QPointF(-half, 0)});
  }
}

}  // namespace quillon
