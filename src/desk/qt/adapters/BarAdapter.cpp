#include "desk/qt/adapters/BarAdapter.h"

#include <algorithm>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"

namespace quillon {

namespace {

constexpr long kGap = 30;
constexpr long kWidest = 2700;  // a lone button must not fill the bar

}  // namespace

BarAdapter::BarAdapter(CButtonBar& model, QWidget* parent)
    : Adapter(model, new QWidget(parent)), bar_(model) {}

PushButton* BarAdapter::NewButton(int index) {
  auto* const button = new PushButton(&Widget());
  button->setFocusPolicy(Qt::NoFocus);
  connect(button, &QPushButton::clicked, this,
          [this, index] { Acts::Run([this, index] { bar_.UserPress(index); }); });
  return button;
}

void BarAdapter::Draw() {
  while (static_cast<int>(buttons_.size()) < bar_.Count()) {
    buttons_.push_back(NewButton(static_cast<int>(buttons_.size())));
  }
  const int gap = Scale::Px(kGap);
  for (int i = 0; i < bar_.Count(); ++i) {
    const CButtonBar::Button& model = bar_.Buttons(i);
    PushButton& shown = *buttons_[static_cast<std::size_t>(i)];
    const int left = Scale::Px(model.Left());
    const int right = Scale::Px(i + 1 < bar_.Count() ? bar_.Buttons(i + 1).Left() : bar_.Width());
    const int width = std::min(right - left, Scale::Px(kWidest));
    shown.setGeometry(left + gap, gap, width - 2 * gap, Widget().height() - 2 * gap);
    shown.setFont(Widget().font());
    shown.SetCaption(QString::fromStdString(model.Caption()));
    shown.SetIconKey(QString::fromStdString(model.Picture()));
    shown.setToolTip(QString::fromStdString(model.ToolTip()));
    shown.setEnabled(model.Enabled());
    // A name without a caption only keeps its place.
    shown.setVisible(model.Visible() && !model.Caption().empty());
  }
}

}  // namespace quillon
