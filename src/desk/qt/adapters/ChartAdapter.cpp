#include "desk/qt/adapters/ChartAdapter.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <QWidget>
#include <algorithm>

#include "desk/qt/adapters/ChartPainter.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

/// The chart; a figure that the pointer rests on is told.
class ChartSurface : public QWidget {
 public:
  ChartSurface(const MSChart& model, QWidget* parent) : QWidget(parent), model_(model) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor back =
        model_.BackColor == Control::kDefaultColor ? Theme::Surface() : Theme::ColorOf(model_.BackColor);
    painter.fillRect(rect(), back);
    ChartPainter(model_, painter, rect(), spots_).Paint();
  }

  bool event(QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    // What was drawn last lies on top.
    const auto spot = std::find_if(spots_.rbegin(), spots_.rend(),
                                   [help](const ChartSpot& each) { return each.Area.contains(help->pos()); });
    if (spot == spots_.rend()) {
      QToolTip::hideText();
    } else {
      QToolTip::showText(help->globalPos(), Words(*spot), this, spot->Area.boundingRect().toAlignedRect());
    }
    return true;
  }

 private:
  QString Words(const ChartSpot& spot) const {
    QStringList words;
    words << QString::fromStdString(model_.PeriodLabel(spot.Period));
    // Without a name a period goes by its number.
    if (words.front().isEmpty() && model_.PeriodCount() > 1) words.front() = QString::number(spot.Period);
    words << QString::fromStdString(model_.SeriesLabel(spot.Series))
          << ChartAxis::Figure(model_.Figure(spot.Series, spot.Period));
    words.removeAll(QString());
    return words.join(QStringLiteral(": "));
  }

  const MSChart& model_;
  std::vector<ChartSpot> spots_;
};

}  // namespace

ChartAdapter::ChartAdapter(MSChart& model, QWidget* parent)
    : Adapter(model, new ChartSurface(model, parent)) {}

void ChartAdapter::Draw() { Widget().update(); }

}  // namespace quillon
