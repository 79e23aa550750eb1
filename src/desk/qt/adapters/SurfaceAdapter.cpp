#include "desk/qt/adapters/SurfaceAdapter.h"

#include <QFrame>
#include <QPainter>

#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

class DrawnFrame : public QFrame {
 public:
  DrawnFrame(const Surface& surface, QWidget* parent) : QFrame(parent), surface_(surface) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    SurfaceAdapter::DrawLines(painter, surface_);
    painter.end();
    QFrame::paintEvent(event);
  }

 private:
  const Surface& surface_;
};

}  // namespace

void SurfaceAdapter::DrawLines(QPainter& painter, const Surface& surface) {
  for (const Surface::DrawnLine& line : surface.Lines()) {
    painter.setPen(Theme::ColorOf(line.color));
    painter.drawLine(Scale::Px(line.fromLeft), Scale::Px(line.fromTop), Scale::Px(line.toLeft),
                     Scale::Px(line.toTop));
  }
}

SurfaceAdapter::SurfaceAdapter(PictureBox& model, QWidget* parent)
    : Adapter(model, new DrawnFrame(model, parent)), surface_(model) {
  if (surface_.Click) TakeClicks();
}

void SurfaceAdapter::Draw() {
  static_cast<QFrame&>(Widget()).setFrameShape(surface_.BorderStyle == 0 ? QFrame::NoFrame
                                                                         : QFrame::StyledPanel);
  Widget().update();
}

}  // namespace quillon
