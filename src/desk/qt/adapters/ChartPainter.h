#pragma once

#include <QRectF>
#include <vector>

#include "desk/qt/adapters/ChartField.h"

class QFontMetricsF;
class QPainter;

namespace quillon {

/// Draws a chart: title, legend, axes, and the figures as its type wants them.
class ChartPainter {
 public:
  /// What figures are seen where goes into `spots`.
  ChartPainter(const MSChart& chart, QPainter& painter, const QRectF& place, std::vector<ChartSpot>& spots);

  void Paint();

 private:
  void PaintTitle();
  void PaintFootnote();
  void PaintLegend();
  void PaintLegendLine(int series, const QRectF& line);
  void PlanAxis();
  void PaintValues();
  void PaintRightValues();
  double WidestValue() const;
  void PaintPeriods();
  void PaintZero();
  QFont FontOf(int axis) const;
  QFontMetricsF Metrics() const;

  const MSChart& chart_;
  QPainter& painter_;
  ChartField field_;
};

}  // namespace quillon
