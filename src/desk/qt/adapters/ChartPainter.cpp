#include "desk/qt/adapters/ChartPainter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr double kMargin = 12;
constexpr double kDepth = 8;
constexpr int kSteps = 5;
constexpr int kWholeTurn = 360 * 16;

QString Figure(double value) { return QString::number(value, 'f', 0); }

}  // namespace

ChartPainter::ChartPainter(const MSChart& chart, QPainter& painter, const QRectF& place)
    : chart_(chart),
      painter_(painter),
      place_(place.adjusted(kMargin, kMargin, -kMargin, -kMargin)),
      deep_(chart.ChartType == MSChart::k3dBar || chart.ChartType == MSChart::k3dLine) {}

void ChartPainter::TakeRange() {
  for (int row = 1; row <= chart_.RowCount(); ++row) {
    for (int series = 1; series <= chart_.ColumnCount(); ++series) {
      least_ = std::min(least_, chart_.GetData(row, series));
      most_ = std::max(most_, chart_.GetData(row, series));
    }
  }
  const double step = std::pow(10, std::floor(std::log10((most_ - least_) / kSteps)));
  least_ = std::floor(least_ / step) * step;
  most_ = std::ceil(most_ / step) * step;
}

double ChartPainter::Y(double value) const {
  return place_.bottom() - (value - least_) / (most_ - least_) * place_.height();
}

double ChartPainter::SlotWidth() const { return place_.width() / std::max(1, chart_.RowCount()); }

void ChartPainter::Paint() {
  painter_.fillRect(place_.adjusted(-kMargin, -kMargin, kMargin, kMargin), Theme::Surface());
  if (chart_.RowCount() == 0 || chart_.ColumnCount() == 0) return;
  TakeRange();
  if (chart_.ShowLegend) PaintLegend();
  if (chart_.ChartType == MSChart::k2dPie) {
    PaintPie();
    return;
  }
  PaintAxes();
  if (chart_.ChartType == MSChart::k2dLine || chart_.ChartType == MSChart::k3dLine) {
    PaintLines();
  } else {
    PaintBars();
  }
}

void ChartPainter::PaintLegend() {
  const double line = painter_.fontMetrics().height() * 1.3;
  double widest = 0;
  for (int series = 1; series <= chart_.ColumnCount(); ++series) {
    const QString label = QString::fromStdString(chart_.ColumnLabel(series));
    widest = std::max<double>(widest, painter_.fontMetrics().horizontalAdvance(label));
  }
  const double left = place_.right() - widest - line;
  for (int series = 1; series <= chart_.ColumnCount(); ++series) {
    const double top = place_.top() + (series - 1) * line;
    painter_.fillRect(QRectF(left, top + line * 0.2, line * 0.6, line * 0.6),
                      Theme::ColorOf(chart_.SeriesColor(series)));
    painter_.setPen(Theme::Text());
    painter_.drawText(QRectF(left + line, top, widest + 1, line), Qt::AlignVCenter,
                      QString::fromStdString(chart_.ColumnLabel(series)));
  }
  place_.setRight(left - kMargin);
}

void ChartPainter::PaintAxes() {
  painter_.setFont(Scale::FontOf(chart_.AxisFont(0)));
  const QFontMetricsF metrics(painter_.font());
  const double figures =
      std::max(metrics.horizontalAdvance(Figure(most_)), metrics.horizontalAdvance(Figure(least_)));
  place_.adjust(figures + kMargin, metrics.height(), 0, -1.5 * metrics.height());
  painter_.setPen(Theme::Muted());
  painter_.drawText(QPointF(place_.left(), place_.top() - 0.4 * metrics.height()),
                    QString::fromStdString(chart_.ValueAxisTitle));
  for (int step = 0; step <= kSteps; ++step) {
    const double value = least_ + (most_ - least_) * step / kSteps;
    painter_.setPen(Theme::Rule());
    painter_.drawLine(QPointF(place_.left(), Y(value)), QPointF(place_.right(), Y(value)));
    painter_.setPen(Theme::Text());
    painter_.drawText(QRectF(place_.left() - figures - kMargin / 2, Y(value) - metrics.height() / 2, figures,
                             metrics.height()),
                      Qt::AlignRight | Qt::AlignVCenter, Figure(value));
  }
  for (int row = 1; row <= chart_.RowCount(); ++row) {
    const QRectF slot(place_.left() + (row - 1) * SlotWidth(), place_.bottom() + 2, SlotWidth(),
                      metrics.height() * 1.4);
    painter_.drawText(
        slot, Qt::AlignHCenter | Qt::AlignTop,
        metrics.elidedText(QString::fromStdString(chart_.RowLabel(row)), Qt::ElideRight, SlotWidth()));
  }
}

void ChartPainter::PaintBars() {
  const double width = SlotWidth() * 0.7 / chart_.ColumnCount();
  for (int row = 1; row <= chart_.RowCount(); ++row) {
    for (int series = 1; series <= chart_.ColumnCount(); ++series) {
      const double value = chart_.GetData(row, series);
      const double left = place_.left() + (row - 1) * SlotWidth() + SlotWidth() * 0.15 + (series - 1) * width;
      const QRectF bar = QRectF(QPointF(left, Y(value)), QPointF(left + width, Y(0))).normalized();
      const QColor color = Theme::ColorOf(chart_.SeriesColor(series));
      painter_.setPen(Qt::NoPen);
      if (deep_) {
        const QPointF back(kDepth, -kDepth);
        painter_.setBrush(color.lighter(130));
        painter_.drawPolygon(
            QPolygonF{bar.topLeft(), bar.topRight(), bar.topRight() + back, bar.topLeft() + back});
        painter_.setBrush(color.darker(130));
        painter_.drawPolygon(
            QPolygonF{bar.topRight(), bar.bottomRight(), bar.bottomRight() + back, bar.topRight() + back});
      }
      painter_.fillRect(bar, color);
    }
  }
}

void ChartPainter::PaintLines() {
  for (int series = 1; series <= chart_.ColumnCount(); ++series) {
    const QColor color = Theme::ColorOf(chart_.SeriesColor(series));
    QPolygonF line;
    for (int row = 1; row <= chart_.RowCount(); ++row) {
      line << QPointF(place_.left() + (row - 0.5) * SlotWidth(), Y(chart_.GetData(row, series)));
    }
    painter_.setBrush(Qt::NoBrush);
    if (deep_) {
      painter_.setPen(QPen(color.darker(130), 5));
      painter_.drawPolyline(line.translated(kDepth / 3, -kDepth / 3));
    }
    painter_.setPen(QPen(color, deep_ ? 5 : 2));
    painter_.drawPolyline(line);
    painter_.setBrush(color);
    for (const QPointF& point : line) painter_.drawEllipse(point, 3, 3);
  }
}

void ChartPainter::PaintPie() {
  double sum = 0;
  for (int series = 1; series <= chart_.ColumnCount(); ++series) sum += std::abs(chart_.GetData(1, series));
  if (sum == 0) return;
  const double side = std::min(place_.width(), place_.height());
  const QRectF circle(place_.center().x() - side / 2, place_.center().y() - side / 2, side, side);
  double done = 0;
  painter_.setPen(Theme::Surface());
  for (int series = 1; series <= chart_.ColumnCount(); ++series) {
    const double part = std::abs(chart_.GetData(1, series)) / sum;
    painter_.setBrush(Theme::ColorOf(chart_.SeriesColor(series)));
    painter_.drawPie(circle, static_cast<int>(std::lround(done * kWholeTurn)),
                     static_cast<int>(std::lround(part * kWholeTurn)));
    done += part;
  }
}

}  // namespace quillon
