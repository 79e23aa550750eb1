#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPen>

class QPainter;

namespace quillon {

/// How a series is told from the others: its colour and, for an eye or a sheet without colours, a pattern
/// over it, a kind of line and a shape of marks. Series count from 1; `unit` is a pixel of the desk at 100 %.
class ChartInk {
 public:
  /// Fills an area; one that is too narrow for the pattern takes the colour alone.
  static void Fill(QPainter& painter, const QPainterPath& area, const QColor& color, int series, double unit);

  static QPen Line(const QColor& color, int series, double unit);
  static void Mark(QPainter& painter, const QPointF& place, const QColor& color, int series, double unit);

  /// For text and edges on a colour.
  static QColor Contrast(const QColor& color);
};

}  // namespace quillon
