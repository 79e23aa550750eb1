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
  // In a narrow window the keys stand in two lines.
  const int lines = Widget().height() * 2 > 3 * Scale::Px(bar_.Height) ? 2 : 1;
  const int inLine = std::max(1, (bar_.Count() + lines - 1) / lines);
  const int height = Widget().height() / lines;
  const int gap = Scale::Px(kGap);
  for (int i = 0; i < bar_.Count(); ++i) {
    const CButtonBar::Button& model = bar_.Buttons(i);
    PushButton& shown = *buttons_[static_cast<std::size_t>(i)];
    const int place = i % inLine;
    const int left = place * Widget().width() / inLine;
    const int right = (place + 1) * Widget().width() / inLine;
    const int width = std::min(right - left, Scale::Px(kWidest));
    shown.setGeometry(left + gap, i / inLine * height + gap, width - 2 * gap, height - 2 * gap);
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
