#include "desk/qt/adapters/SurfaceAdapter.h"

#include <QFrame>

namespace quillon {

SurfaceAdapter::SurfaceAdapter(PictureBox& model, QWidget* parent)
    : Adapter(model, new QFrame(parent)), surface_(model) {
  if (surface_.Click) TakeClicks();
}

void SurfaceAdapter::Draw() {
  static_cast<QFrame&>(Widget()).setFrameShape(surface_.BorderStyle == 0 ? QFrame::NoFrame
                                                                         : QFrame::StyledPanel);
}

}  // namespace quillon
