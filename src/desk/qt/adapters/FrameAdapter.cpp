#include "desk/qt/adapters/FrameAdapter.h"

#include <QGroupBox>

namespace quillon {

FrameAdapter::FrameAdapter(Frame& model, QWidget* parent)
    : Adapter(model, new QGroupBox(parent)), frame_(model) {}

void FrameAdapter::Draw() {
  static_cast<QGroupBox&>(Widget()).setTitle(QString::fromStdString(frame_.Caption));
}

}  // namespace quillon
