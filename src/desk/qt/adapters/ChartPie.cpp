#include <QPainter>
#include <cmath>
#include <numbers>

#include "desk/qt/adapters/ChartField.h"
#include "desk/qt/adapters/ChartInk.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr double kTop = 90;           // degrees; slices go round from the top like the hands of a clock
constexpr double kLeastNamed = 0.02;  // of the whole, a slice with its name beside it
constexpr double kLeastEdged = 6;     // along the rim, a slice with an edge of its own
constexpr double kGap = 6;

/// One pie: the slices of a period.
class Pie {
 public:
  Pie(ChartField& field, int period, const QRectF& place) : field_(field), period_(period), place_(place) {
    for (int series = 1; series <= field_.Model.SeriesCount(); ++series) sum_ += Size(series);
  }

  void Paint() {
    QPainter& painter = field_.Painter;
    const QFontMetricsF metrics(painter.font(), painter.device());
    PaintTitle(metrics);
    if (sum_ == 0) {
      painter.setPen(Theme::Muted());
      painter.drawText(place_, Qt::AlignCenter, QStringLiteral("No figures"));
      return;
    }
    // The names stand around the circle.
    const double across = place_.width() - 2 * (WidestName(metrics) + 2 * kGap * field_.Unit);
    const double down = place_.height() - 2 * (metrics.height() + kGap * field_.Unit);
    radius_ = std::max(std::min(across, down) / 2, std::min(place_.width(), place_.height()) / 5);
    double from = kTop;
    for (int series = 1; series <= field_.Model.SeriesCount(); ++series) {
      const double share = Size(series) / sum_;
      if (share == 0) continue;
      PaintSlice(series, from, -share * 360);
      from -= share * 360;
    }
    PaintNames(metrics);
  }

 private:
  double Size(int series) const {
    return field_.Model.IsMissing(series, period_) ? 0 : std::abs(field_.Model.Figure(series, period_));
  }

  QString NameOf(int series) const {
    const QString label = QString::fromStdString(field_.Model.SeriesLabel(series));
    const QString share = QString::number(Size(series) / sum_ * 100, 'f', 1) + QStringLiteral(" %");
    // A slice can't show which side of zero its figure lies on.
    const QString sign = field_.Model.Figure(series, period_) < 0 ? QStringLiteral(" (minus)") : QString();
    return (label.isEmpty() ? share : label + QLatin1Char(' ') + share) + sign;
  }

  double WidestName(const QFontMetricsF& metrics) const {
    double widest = 0;
    for (int series = 1; series <= field_.Model.SeriesCount(); ++series) {
      if (sum_ > 0 && Size(series) / sum_ >= kLeastNamed)
        widest = std::max(widest, metrics.horizontalAdvance(NameOf(series)));
    }
    return widest;
  }

  void PaintTitle(const QFontMetricsF& metrics) {
    if (field_.Model.PeriodCount() < 2) return;
    const QRectF line(place_.left(), place_.top(), place_.width(), metrics.height());
    field_.Painter.setPen(Theme::Text());
    field_.Painter.drawText(line, Qt::AlignCenter, QString::fromStdString(field_.Model.PeriodLabel(period_)));
    place_.setTop(line.bottom());
  }

  void PaintSlice(int series, double from, double sweep) {
    const QPointF centre = place_.center();
    const QRectF circle(centre.x() - radius_, centre.y() - radius_, 2 * radius_, 2 * radius_);
    QPainterPath slice;
    if (sweep <= -360) {
      slice.addEllipse(circle);
    } else {
      slice.moveTo(centre);
      slice.arcTo(circle, from, sweep);
      slice.closeSubpath();
    }
    ChartInk::Fill(field_.Painter, slice, field_.ColorOf(series), series, field_.Unit);
    // Edges would hide the slices of a pie of many.
    if (-sweep * std::numbers::pi / 180 * radius_ >= kLeastEdged * field_.Unit) {
      field_.Painter.setBrush(Qt::NoBrush);
      field_.Painter.setPen(QPen(Theme::Surface(), field_.Unit));
      field_.Painter.drawPath(slice);
    }
    field_.Spots.push_back({slice, series, period_});
  }

  /// Names that would run into the one before are left to the legend.
  void PaintNames(const QFontMetricsF& metrics) {
    std::vector<QRectF> taken;
    double from = kTop;
    for (int series = 1; series <= field_.Model.SeriesCount(); ++series) {
      const double share = Size(series) / sum_;
      const double middle = (from - share * 180) * std::numbers::pi / 180;
      from -= share * 360;
      if (share < kLeastNamed) continue;
      const QString name = NameOf(series);
      const double reach = radius_ + kGap * field_.Unit;
      const QPointF at = place_.center() + QPointF(std::cos(middle) * reach, -std::sin(middle) * reach);
      QRectF box(0, 0, metrics.horizontalAdvance(name) + 1, metrics.height());
      box.moveTop(at.y() - metrics.height() * (1 + std::sin(middle)) / 2);
      box.moveLeft(std::cos(middle) >= 0 ? at.x() : at.x() - box.width());
      const bool runsIn = std::any_of(taken.begin(), taken.end(),
                                      [&box](const QRectF& other) { return other.intersects(box); });
      if (runsIn || !place_.adjusted(-1, -1, 1, 1).contains(box)) continue;
      taken.push_back(box);
      field_.Painter.setPen(Theme::Text());
      field_.Painter.drawText(box, Qt::AlignCenter, name);
    }
  }

  ChartField& field_;
  int period_;
  QRectF place_;
  double sum_ = 0;
  double radius_ = 0;
};

}  // namespace

void PaintChartPies(ChartField& field) {
  const int pies = field.Model.PeriodCount();
  // As many side by side as keeps each about square.
  int across = 1;
  while (across < pies &&
         field.Place.width() / (across + 1) >=
             field.Place.height() / std::ceil(static_cast<double>(pies) / (across + 1)) * 0.8)
    ++across;
  const int down = (pies + across - 1) / across;
  const double width = field.Place.width() / across;
  const double height = field.Place.height() / down;
  for (int period = 1; period <= pies; ++period) {
    const int column = (period - 1) % across;
    const int row = (period - 1) / across;
    const QRectF place(field.Place.left() + column * width, field.Place.top() + row * height, width, height);
    Pie(field, period, place).Paint();
  }
}

}  // namespace quillon
