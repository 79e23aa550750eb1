#include "desk/qt/adapters/ChartAdapter.h"

#include <QPainter>
#include <QWidget>

#include "desk/qt/adapters/ChartPainter.h"

namespace quillon {

namespace {

class ChartSurface : public QWidget {
 public:
  ChartSurface(const MSChart& model, QWidget* parent) : QWidget(parent), model_(model) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    ChartPainter(model_, painter, rect()).Paint();
  }

 private:
  const MSChart& model_;
};

}  // namespace

ChartAdapter::ChartAdapter(MSChart& model, QWidget* parent)
    : Adapter(model, new ChartSurface(model, parent)) {}

void ChartAdapter::Draw() { Widget().update(); }

}  // namespace quillon
