#pragma once

#include <QRectF>

#include "host/controls/MSChart.h"

class QPainter;

namespace quillon {

/// Draws a chart: bars or lines over an axis of values, or a pie of each series' first figures. The 3D kinds
/// have depth to their bars and lines.
class ChartPainter {
 public:
  ChartPainter(const MSChart& chart, QPainter& painter, const QRectF& place);

  void Paint();

 private:
  void TakeRange();
  void PaintLegend();
  void PaintAxes();
  void PaintBars();
  void PaintLines();
  void PaintPie();
  double Y(double value) const;
  double SlotWidth() const;

  const MSChart& chart_;
  QPainter& painter_;
  QRectF place_;
  double least_ = 0;
  double most_ = 1;
  bool deep_;
};

}  // namespace quillon
