#include "desk/qt/adapters/ChartPainter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desk/qt/adapters/ChartInk.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr double kMargin = 12;
constexpr double kDepth = 12;
constexpr double kStepLines = 2.6;     // lines of text from one step of the axis to the next
constexpr double kLegendShare = 0.34;  // of the width, at most
constexpr double kLegendNameShare = 0.25;
constexpr int kRounds[] = {1, 2, 5, 10, 15, 30, 50, 100};

}  // namespace

QColor ChartField::ColorOf(int series) const {
  return Theme::ColorOf(Model.Plot.SeriesCollection(series).DataPoints(-1).Brush.FillColor.Value());
}

ChartPainter::ChartPainter(const MSChart& chart, QPainter& painter, const QRectF& place,
                           std::vector<ChartSpot>& spots)
    : chart_(chart), painter_(painter), field_{chart, painter, Scale::Percent() / 100.0, place, 0,
                                               {},    spots} {
  const double margin = kMargin * field_.Unit;
  field_.Place.adjust(margin, margin, -margin, -margin);
}

QFont ChartPainter::FontOf(int axis) const { return Scale::FontOf(chart_.Plot.Axis(axis).Labels(1).Font); }

QFontMetricsF ChartPainter::Metrics() const { return QFontMetricsF(painter_.font(), painter_.device()); }

void ChartPainter::Paint() {
  field_.Spots.clear();
  PaintTitle();
  PaintFootnote();
  if (chart_.SeriesCount() == 0 || chart_.PeriodCount() == 0) {
    painter_.setPen(Theme::Muted());
    painter_.drawText(field_.Place, Qt::AlignCenter, QStringLiteral("No figures"));
    return;
  }
  if (chart_.ShowLegend) PaintLegend();
  if (chart_.IsPie()) {
    painter_.setFont(FontOf(MSChartPlot::kAxisX));
    PaintChartPies(field_);
    return;
  }
  PlanAxis();
  PaintValues();
  PaintRightValues();
  PaintPeriods();
  if (chart_.chartType <= MSChart::k2dBar) {
    PaintChartBars(field_);
  } else {
    PaintChartLines(field_);
  }
  PaintZero();
}

void ChartPainter::PaintTitle() {
  if (chart_.TitleText().empty()) return;
  painter_.save();
  QFont font = painter_.font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * 1.2);
  painter_.setFont(font);
  const double height = Metrics().height() * 1.4;
  painter_.setPen(Theme::Text());
  painter_.drawText(QRectF(field_.Place.left(), field_.Place.top(), field_.Place.width(), height),
                    Qt::AlignHCenter | Qt::AlignTop, QString::fromStdString(chart_.TitleText));
  painter_.restore();
  field_.Place.setTop(field_.Place.top() + height);
}

void ChartPainter::PaintFootnote() {
  if (chart_.FootnoteText().empty()) return;
  const double height = Metrics().height() * 1.4;
  field_.Place.setBottom(field_.Place.bottom() - height);
  painter_.setPen(Theme::Muted());
  painter_.drawText(QRectF(field_.Place.left(), field_.Place.bottom(), field_.Place.width(), height),
                    Qt::AlignHCenter | Qt::AlignBottom, QString::fromStdString(chart_.FootnoteText));
}

void ChartPainter::PaintLegend() {
  const QFontMetricsF metrics = Metrics();
  const double line = metrics.height() * 1.4;
  const double room = field_.Place.width();
  double widest = 0;
  for (int series = 1; series <= chart_.SeriesCount(); ++series)
    widest = std::max(widest, metrics.horizontalAdvance(QString::fromStdString(chart_.SeriesLabel(series))));
  if (widest == 0) return;
  const int perColumn = std::max(1, static_cast<int>(field_.Place.height() / line));
  double width = std::min(widest, room * kLegendNameShare) + 2.6 * line;
  // Where not all have room, the last line says so.
  if (chart_.SeriesCount() > perColumn)
    width = std::max(width, metrics.horizontalAdvance(QStringLiteral(" and 999 more")));
  const int most = std::max(1, static_cast<int>(room * kLegendShare / width));
  const int columns = std::min(most, (chart_.SeriesCount() + perColumn - 1) / perColumn);
  const int shown = std::min(chart_.SeriesCount(), columns * perColumn);
  const double left = field_.Place.right() - columns * width;
  for (int series = 1; series <= shown; ++series) {
    const int column = (series - 1) / perColumn;
    const int row = (series - 1) % perColumn;
    const QRectF place(left + column * width, field_.Place.top() + row * line, width, line);
    if (series == shown && shown < chart_.SeriesCount()) {
      painter_.setPen(Theme::Muted());
      painter_.drawText(place, Qt::AlignVCenter,
                        QStringLiteral("and %1 more").arg(chart_.SeriesCount() - shown + 1));
    } else {
      PaintLegendLine(series, place);
    }
  }
  field_.Place.setRight(left - kMargin * field_.Unit);
}

void ChartPainter::PaintLegendLine(int series, const QRectF& line) {
  const QColor color = field_.ColorOf(series);
  const QRectF key(line.left(), line.top() + line.height() * 0.15, line.height() * 1.6, line.height() * 0.7);
  const bool isLine = chart_.chartType == MSChart::k2dLine || chart_.chartType == MSChart::k2dStep;
  if (isLine) {
    painter_.setPen(ChartInk::Line(color, series, field_.Unit));
    painter_.drawLine(QPointF(key.left(), key.center().y()), QPointF(key.right(), key.center().y()));
    if (chart_.Plot.SeriesCollection(series).SeriesMarker.Show)
      ChartInk::Mark(painter_, key.center(), color, series, field_.Unit);
  } else {
    QPainterPath area;
    area.addRect(key);
    ChartInk::Fill(painter_, area, color, series, field_.Unit);
  }
  const QRectF words(key.right() + line.height() * 0.4, line.top(),
                     line.right() - key.right() - line.height() * 0.5, line.height());
  painter_.setPen(Theme::Text());
  painter_.drawText(words, Qt::AlignVCenter,
                    Metrics().elidedText(QString::fromStdString(chart_.SeriesLabel(series)), Qt::ElideRight,
                                         words.width()));
}

void ChartPainter::PlanAxis() {
  double least = 0;
  double most = 0;
  for (int period = 1; period <= chart_.PeriodCount(); ++period) {
    for (int series = 1; series <= chart_.SeriesCount(); ++series) {
      if (chart_.IsMissing(series, period)) continue;
      least = std::min(least, chart_.Figure(series, period));
      most = std::max(most, chart_.Figure(series, period));
    }
  }
  field_.Depth = chart_.IsDeep() ? kDepth * field_.Unit : 0;
  painter_.setFont(FontOf(MSChartPlot::kAxisX));
  const double periods = Metrics().height() * 1.5;
  painter_.setFont(FontOf(MSChartPlot::kAxisY));
  const QFontMetricsF metrics = Metrics();
  const bool isTitled = !chart_.Plot.Axis(MSChartPlot::kAxisY).AxisTitle.Text().empty() ||
                        !chart_.Plot.Axis(MSChartPlot::kAxisY2).AxisTitle.Text().empty();
  const double title = isTitled ? 1.8 : 0.6;
  field_.Place.adjust(0, title * metrics.height() + field_.Depth, -field_.Depth, -periods);
  const double steps = field_.Place.height() / (kStepLines * metrics.height());
  field_.Axis = ChartAxis::For(least, most, std::clamp(static_cast<int>(steps), 2, 10));
  field_.Place.setLeft(field_.Place.left() + WidestValue() + kMargin * field_.Unit);
  painter_.setFont(FontOf(MSChartPlot::kAxisY2));
  field_.Place.setRight(field_.Place.right() - WidestValue() - kMargin / 2 * field_.Unit);
}

double ChartPainter::WidestValue() const {
  double widest = 0;
  for (int step = 0; step <= field_.Axis.Steps(); ++step)
    widest = std::max(widest, Metrics().horizontalAdvance(field_.Axis.Label(step)));
  return widest;
}

void ChartPainter::PaintValues() {
  painter_.setFont(FontOf(MSChartPlot::kAxisY));
  const QFontMetricsF metrics = Metrics();
  const QPointF back(field_.Depth, -field_.Depth);
  const double left = field_.Place.left();
  const QString title = QString::fromStdString(chart_.Plot.Axis(MSChartPlot::kAxisY).AxisTitle.Text());
  if (!title.isEmpty()) {
    painter_.setPen(Theme::Muted());
    painter_.drawText(QPointF(left, field_.Place.top() - field_.Depth - 0.9 * metrics.height()), title);
  }
  for (int step = 0; step <= field_.Axis.Steps(); ++step) {
    const double y = field_.Y(field_.Axis.At(step));
    painter_.setPen(QPen(Theme::Border(), field_.Unit / 2));
    if (field_.Depth > 0) painter_.drawLine(QPointF(left, y), QPointF(left, y) + back);
    painter_.drawLine(QPointF(left, y) + back, QPointF(field_.Place.right(), y) + back);
    painter_.setPen(Theme::Text());
    painter_.drawText(QRectF(0, y - metrics.height() / 2, left - kMargin / 2 * field_.Unit, metrics.height()),
                      Qt::AlignRight | Qt::AlignVCenter, field_.Axis.Label(step));
  }
}

/// The same values again beside the last period, so that a wide chart is read without going back.
void ChartPainter::PaintRightValues() {
  painter_.setFont(FontOf(MSChartPlot::kAxisY2));
  const QFontMetricsF metrics = Metrics();
  const double right = field_.Place.right() + field_.Depth;
  const QString title = QString::fromStdString(chart_.Plot.Axis(MSChartPlot::kAxisY2).AxisTitle.Text());
  painter_.setPen(Theme::Muted());
  painter_.drawText(QRectF(0, field_.Place.top() - field_.Depth - 1.8 * metrics.height(),
                           right + WidestValue() + kMargin / 2 * field_.Unit, metrics.height()),
                    Qt::AlignRight | Qt::AlignVCenter, title);
  for (int step = 0; step <= field_.Axis.Steps(); ++step) {
    const double y = field_.Y(field_.Axis.At(step)) - field_.Depth;
    painter_.drawText(QRectF(right + kMargin / 2 * field_.Unit, y - metrics.height() / 2, WidestValue() + 1,
                             metrics.height()),
                      Qt::AlignLeft | Qt::AlignVCenter, field_.Axis.Label(step));
  }
}

void ChartPainter::PaintPeriods() {
  painter_.setFont(FontOf(MSChartPlot::kAxisX));
  const QFontMetricsF metrics = Metrics();
  const int count = chart_.PeriodCount();
  bool named = false;
  double widest = 0;
  for (int period = 1; period <= count; ++period) {
    const QString label = QString::fromStdString(chart_.PeriodLabel(period));
    named = named || !label.isEmpty();
    widest = std::max(widest, metrics.horizontalAdvance(label));
  }
  if (!named) widest = metrics.horizontalAdvance(QString::number(count));
  // Labels without room of their own are left out, at even distances.
  const int needed = static_cast<int>(std::ceil((widest + metrics.averageCharWidth()) / field_.SlotWidth()));
  const int* const round =
      std::find_if(std::begin(kRounds), std::end(kRounds), [needed](int each) { return each >= needed; });
  const int every = named || round == std::end(kRounds) ? needed : *round;
  painter_.setPen(Theme::Text());
  for (int period = 1; period <= count; ++period) {
    if (named ? (period - 1) % every != 0 : every > 1 && period != 1 && period % every != 0) continue;
    if (!named && period == 1 && every > 1 && every * field_.SlotWidth() < widest * 1.5) continue;
    const double centre = field_.SlotLeft(period) + field_.SlotWidth() / 2;
    const QString label =
        named ? QString::fromStdString(chart_.PeriodLabel(period)) : QString::number(period);
    painter_.drawText(
        QRectF(centre - widest, field_.Place.bottom() + 3 * field_.Unit, 2 * widest, metrics.height() * 1.4),
        Qt::AlignHCenter | Qt::AlignTop, label);
  }
}

void ChartPainter::PaintZero() {
  painter_.setPen(QPen(Theme::Muted(), field_.Unit));
  const double y = field_.Y(0);
  painter_.drawLine(QPointF(field_.Place.left(), y), QPointF(field_.Place.right(), y));
  // Beside the first bar, which it would hide where bars are narrow.
  const double left = field_.Place.left() - field_.Unit;
  painter_.drawLine(QPointF(left, field_.Place.top()), QPointF(left, field_.Place.bottom()));
}

}  // namespace quillon
