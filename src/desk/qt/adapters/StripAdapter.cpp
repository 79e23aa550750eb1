#include "desk/qt/adapters/StripAdapter.h"

#include "desk/qt/adapters/ElidedLabel.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr int kIndent = 6;

}  // namespace

StripAdapter::StripAdapter(CMStrip& model, QWidget* parent)
    : Adapter(model, new ElidedLabel(parent)), strip_(model) {
  static_cast<QLabel&>(Widget()).setContentsMargins(kIndent, 0, 0, 0);
}

void StripAdapter::Dress() {
  Adapter::Dress();
  QPalette palette = Widget().palette();
  palette.setColor(QPalette::WindowText, Theme::Accent());
  Widget().setPalette(palette);
}

void StripAdapter::Draw() {
  static_cast<QLabel&>(Widget()).setText(QString::fromStdString(strip_.Details()));
}

}  // namespace quillon
