#include <QPainter>
#include <cmath>

#include "desk/qt/adapters/ChartField.h"
#include "desk/qt/adapters/ChartInk.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr double kShare = 0.76;   // of its slot that a group of bars takes
constexpr double kWideSlot = 8;   // from which on it leaves that share free
constexpr double kLeastDeep = 4;  // narrower bars have no depth, which would hide their gaps

QPainterPath Polygon(const QPolygonF& polygon) {
  QPainterPath path;
  path.addPolygon(polygon);
  path.closeSubpath();
  return path;
}

/// The left and right edges of the groups. Groups are told apart by whole pixels between them.
class Groups {
 public:
  explicit Groups(const ChartField& field)
      : field_(field),
        slot_(field.SlotWidth() / field.Unit),
        gap_(std::min(std::max(1.0, std::floor(field.Unit)), std::floor(field.SlotWidth() / 2))) {}

  double Left(int period) const {
    if (slot_ >= kWideSlot) return field_.SlotLeft(period) + field_.SlotWidth() * (1 - kShare) / 2;
    return std::round(field_.SlotLeft(period));
  }
  double Width(int period) const {
    if (slot_ >= kWideSlot) return field_.SlotWidth() * kShare;
    return std::round(field_.SlotLeft(period + 1)) - std::round(field_.SlotLeft(period)) - gap_;
  }

  /// Where no gap can be left, every second group is darker.
  bool Shaded(int period) const { return slot_ < kWideSlot && gap_ == 0 && period % 2 == 0; }

 private:
  const ChartField& field_;
  double slot_;
  double gap_;
};

void PaintDepth(ChartField& field, const QRectF& bar, const QColor& color, double depth) {
  const QPointF back(depth, -depth);
  field.Painter.fillPath(
      Polygon({bar.topLeft(), bar.topRight(), bar.topRight() + back, bar.topLeft() + back}),
      color.lighter(135));
  field.Painter.fillPath(
      Polygon({bar.topRight(), bar.bottomRight(), bar.bottomRight() + back, bar.topRight() + back}),
      color.darker(140));
}

}  // namespace

void PaintChartBars(ChartField& field) {
  const Groups groups(field);
  const int series = field.Model.SeriesCount();
  for (int period = 1; period <= field.Model.PeriodCount(); ++period) {
    const double width = groups.Width(period) / series;
    for (int each = 1; each <= series; ++each) {
      if (field.Model.IsMissing(each, period)) continue;
      const double value = field.Model.Figure(each, period);
      const double left = groups.Left(period) + (each - 1) * width;
      const QRectF bar =
          QRectF(QPointF(left, field.Y(value)), QPointF(left + width, field.Y(0))).normalized();
      const QColor own = field.ColorOf(each);
      const QColor color = groups.Shaded(period) ? own.darker(150) : own;
      QPainterPath area;
      area.addRect(bar);
      if (value != 0) {
        // Whole pixels keep the gaps between narrow bars clean.
        field.Painter.setRenderHint(QPainter::Antialiasing, width >= kWideSlot * field.Unit);
        if (field.Depth > 0 && width >= kLeastDeep * field.Unit)
          PaintDepth(field, bar, color, std::min(field.Depth, width));
        ChartInk::Fill(field.Painter, area, color, each, field.Unit);
      }
      // A figure of 0, or next to it, can be pointed at too, above its place on the line.
      QPainterPath spot;
      spot.addRect(bar.height() < 6 * field.Unit ? bar.adjusted(0, -6 * field.Unit, 0, 0) : bar);
      field.Spots.push_back({spot, each, period});
    }
  }
  field.Painter.setRenderHint(QPainter::Antialiasing);
}

}  // namespace quillon
