#include <QPainter>
#include <algorithm>
#include <numeric>

#include "desk/qt/adapters/ChartField.h"
#include "desk/qt/adapters/ChartInk.h"

namespace quillon {

namespace {

constexpr double kMarkedSlot = 10;  // narrower ones have no room for marks
constexpr double kReach = 8;        // around a figure that can be pointed at

/// A run of figures without a gap.
struct Run {
  QPolygonF Line;
  std::vector<int> Periods;
};

class Curve {
 public:
  Curve(ChartField& field, int series)
      : field_(field), series_(series), color_(field.ColorOf(series)), type_(field.Model.chartType) {}

  void Paint() {
    for (const Run& run : Runs()) {
      const QPolygonF line = IsStep() ? Stepped(run.Line) : run.Line;
      if (IsArea()) {
        PaintArea(line);
      } else {
        PaintLine(line);
      }
      PaintMarks(run);
    }
  }

 private:
  bool IsArea() const { return type_ == MSChart::k2dArea || type_ == MSChart::k3dArea; }
  bool IsStep() const { return type_ == MSChart::k2dStep || type_ == MSChart::k3dStep; }

  std::vector<Run> Runs() const {
    std::vector<Run> runs(1);
    for (int period = 1; period <= field_.Model.PeriodCount(); ++period) {
      if (field_.Model.IsMissing(series_, period)) {
        if (!runs.back().Line.isEmpty()) runs.emplace_back();
        continue;
      }
      const double x = field_.SlotLeft(period) + field_.SlotWidth() / 2;
      runs.back().Line << QPointF(x, field_.Y(field_.Model.Figure(series_, period)));
      runs.back().Periods.push_back(period);
    }
    if (runs.back().Line.isEmpty()) runs.pop_back();
    return runs;
  }

  /// Level over each period, upright between two.
  QPolygonF Stepped(const QPolygonF& line) const {
    QPolygonF steps;
    const double half = field_.SlotWidth() / 2;
    for (const QPointF& point : line) steps << point - QPointF(half, 0) << point + QPointF(half, 0);
    return steps;
  }

  void PaintRibbon(const QPolygonF& line) {
    const QPointF back(field_.Depth, -field_.Depth);
    for (qsizetype i = 0; i + 1 < line.size(); ++i) {
      const bool rising = line[i + 1].y() < line[i].y();
      QPainterPath side;
      side.addPolygon(QPolygonF{line[i], line[i + 1], line[i + 1] + back, line[i] + back});
      side.closeSubpath();
      ChartInk::Fill(field_.Painter, side, rising ? color_.darker(115) : color_.lighter(125), series_,
                     field_.Unit);
      field_.Painter.setBrush(Qt::NoBrush);
      field_.Painter.setPen(QPen(color_.darker(150), field_.Unit / 2));
      field_.Painter.drawPath(side);
    }
  }

  void PaintLine(const QPolygonF& line) {
    if (field_.Depth > 0) PaintRibbon(line);
    field_.Painter.setBrush(Qt::NoBrush);
    const QColor edge = field_.Depth > 0 ? color_.darker(160) : color_;
    field_.Painter.setPen(ChartInk::Line(edge, series_, field_.Unit));
    field_.Painter.drawPolyline(line);
  }

  void PaintArea(const QPolygonF& line) {
    const double zero = field_.Y(0);
    QPainterPath area;
    area.moveTo(line.front().x(), zero);
    for (const QPointF& point : line) area.lineTo(point);
    area.lineTo(line.back().x(), zero);
    area.closeSubpath();
    if (field_.Depth > 0) {
      PaintRibbon(line);
      const QPointF back(field_.Depth, -field_.Depth);
      const QPointF foot(line.back().x(), zero);
      field_.Painter.setBrush(color_.darker(150));
      field_.Painter.drawPolygon(QPolygonF{line.back(), foot, foot + back, line.back() + back});
    }
    ChartInk::Fill(field_.Painter, area, color_, series_, field_.Unit);
    field_.Painter.setBrush(Qt::NoBrush);
    field_.Painter.setPen(QPen(color_.darker(150), field_.Unit));
    field_.Painter.drawPolyline(line);
  }

  void PaintMarks(const Run& run) {
    const bool roomy = field_.SlotWidth() >= kMarkedSlot * field_.Unit;
    const bool wanted = field_.Model.Plot.SeriesCollection(series_).SeriesMarker.Show && !IsArea();
    // A figure that stands alone is no line; without its mark nobody would see it.
    const bool alone = run.Line.size() == 1 && !IsStep();
    for (qsizetype i = 0; i < run.Line.size(); ++i) {
      if (alone || (wanted && roomy))
        ChartInk::Mark(field_.Painter, run.Line[i], color_, series_, field_.Unit);
      const double reach = std::min(kReach * field_.Unit, field_.SlotWidth() / 2);
      QPainterPath spot;
      spot.addRect(QRectF(run.Line[i].x() - reach, run.Line[i].y() - kReach * field_.Unit, 2 * reach,
                          2 * kReach * field_.Unit));
      field_.Spots.push_back({spot, series_, run.Periods[static_cast<std::size_t>(i)]});
    }
  }

  ChartField& field_;
  int series_;
  QColor color_;
  int type_;
};

}  // namespace

void PaintChartLines(ChartField& field) {
  std::vector<int> order(static_cast<std::size_t>(field.Model.SeriesCount()));
  std::iota(order.begin(), order.end(), 1);
  const auto size = [&field](int series) {
    double sum = 0;
    for (int period = 1; period <= field.Model.PeriodCount(); ++period)
      sum += std::abs(field.Model.Figure(series, period));
    return sum;
  };
  // The larger areas lie behind the smaller ones.
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return size(a) > size(b); });
  for (const int series : order) Curve(field, series).Paint();
}

}  // namespace quillon
