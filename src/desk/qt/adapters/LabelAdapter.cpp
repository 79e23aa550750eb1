#include "desk/qt/adapters/LabelAdapter.h"

#include <QLabel>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/ElidedLabel.h"
#include "desk/qt/adapters/Theme.h"
#include "host/controls/Colors.h"

namespace quillon {

namespace {

constexpr const char* kScreenTitle = "lblTitle";

Qt::Alignment AlignmentOf(int alignment) {
  switch (alignment) {
    case 1:
      return Qt::AlignRight;
    case 2:
      return Qt::AlignHCenter;
    default:
      return Qt::AlignLeft;
  }
}

}  // namespace

LabelAdapter::LabelAdapter(Label& model, QWidget* parent)
    : Adapter(model, new ElidedLabel(parent)), label_(model) {
  TakeClicks();
}

void LabelAdapter::Dress() {
  Adapter::Dress();
  // The title line of a screen is the same on all of them.
  if (label_.Name() != kScreenTitle || label_.BackColor != Control::kDefaultColor) return;
  QPalette palette = Widget().palette();
  palette.setColor(QPalette::Window, Theme::AccentSoft());
  Widget().setPalette(palette);
  Widget().setAutoFillBackground(true);
  QFont font = Widget().font();
  font.setBold(true);
  Widget().setFont(font);
}

void LabelAdapter::Draw() {
  auto& shown = static_cast<QLabel&>(Widget());
  const QString caption = QString::fromStdString(label_.Caption).remove(QLatin1Char('\r'));
  const bool fromTop = label_.FromTop || label_.WordWrap || caption.contains(QLatin1Char('\n'));
  shown.setText(caption);
  shown.setWordWrap(label_.WordWrap);
  shown.setAlignment(AlignmentOf(label_.Alignment) | (fromTop ? Qt::AlignTop : Qt::AlignVCenter));
}

/// An object that is chosen among others lies above them, and below all that is no label.
void LabelAdapter::Settle() {
  if (label_.BackColor != colors::kHighlight) return;
  const QObjectList& siblings = Widget().parentWidget()->children();
  for (qsizetype at = siblings.indexOf(&Widget()) + 1; at < siblings.size(); ++at) {
    if (!siblings[at]->isWidgetType() || dynamic_cast<ElidedLabel*>(siblings[at]) != nullptr) continue;
    Widget().stackUnder(static_cast<QWidget*>(siblings[at]));
    return;
  }
}

void LabelAdapter::Clicked() {
  if (label_.Click) Adapter::Clicked();
}

bool LabelAdapter::DoubleClicked() {
  if (!label_.DblClick) return false;
  Acts::Run([this] { label_.UserDoubleClick(); });
  return true;
}

bool LabelAdapter::eventFilter(QObject* watched, QEvent* event) {
  // What lies behind a label that nobody clicks gets its clicks.
  return (label_.Click || label_.DblClick) && Adapter::eventFilter(watched, event);
}

}  // namespace quillon
