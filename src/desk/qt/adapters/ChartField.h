#pragma once

#include <QPainterPath>
#include <QRectF>
#include <vector>

#include "desk/qt/adapters/ChartAxis.h"
#include "host/controls/MSChart.h"

class QPainter;

namespace quillon {

/// Where a figure of a chart is seen.
struct ChartSpot {
  QPainterPath Area;
  int Series = 0;
  int Period = 0;
};

/// The room in which figures are drawn, and what all that draw there need.
struct ChartField {
  const MSChart& Model;
  QPainter& Painter;
  double Unit = 1;  ///< a pixel of the desk at 100 %
  QRectF Place;     ///< of the figures, the depth of a deep chart not counted
  double Depth = 0;
  ChartAxis Axis;
  std::vector<ChartSpot>& Spots;

  double Y(double value) const {
    return Place.bottom() - (value - Axis.Least) / (Axis.Most - Axis.Least) * Place.height();
  }
  double SlotWidth() const { return Place.width() / std::max(1, Model.PeriodCount()); }
  double SlotLeft(int period) const { return Place.left() + (period - 1) * SlotWidth(); }
  QColor ColorOf(int series) const;
};

/// Bars side by side, one group for each period.
void PaintChartBars(ChartField& field);

/// Lines, areas and steps through the figures.
void PaintChartLines(ChartField& field);

/// A pie for each period, a slice for each series.
void PaintChartPies(ChartField& field);

}  // namespace quillon
