#include "desk/qt/adapters/PushButton.h"

#include <QApplication>
#include <QPainter>

#include "desk/qt/adapters/Icons.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr int kGapTwips = 90;
constexpr int kIconTwips = 270;
constexpr double kCorner = 3;
constexpr int kLongestKey = 5;

int Gap() { return Scale::Px(kGapTwips); }

}  // namespace

PushButton::PushButton(QWidget* parent) : QPushButton(parent) {}

void PushButton::SetCaption(const QString& caption) {
  setAccessibleName(caption);
  const qsizetype colon = caption.indexOf(QLatin1Char(':'));
  const QString before = colon > 0 ? caption.left(colon).trimmed() : QString();
  const bool hasKey = !before.isEmpty() && before.size() <= kLongestKey;
  key_ = hasKey ? before : QString();
  words_ = hasKey ? caption.mid(colon + 1).trimmed() : caption.trimmed();
  update();
}

void PushButton::SetIconKey(const QString& iconKey) {
  icon_ = Icons::Has(iconKey) ? iconKey : QString();
  updateGeometry();
  update();
}

void PushButton::SetFocused(bool focused) {
  if (focused_ == focused) return;
  focused_ = focused;
  update();
}

QSize PushButton::sizeHint() const {
  const QFontMetrics metrics(font());
  const int icon = icon_.isEmpty() ? 0 : Scale::Px(kIconTwips) + Gap();
  const int width = metrics.horizontalAdvance(key_ + words_) + icon + 5 * Gap();
  return {std::max(width, Scale::Px(1500)), metrics.height() + 3 * Gap()};
}

/// A button that its form coloured stands for the choice in force.
QColor PushButton::Face() const {
  return palette().color(QPalette::Button) == QApplication::palette().color(QPalette::Button)
             ? Theme::Surface()
             : palette().color(QPalette::Button);
}

void PushButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRect box = rect().adjusted(1, 1, -1, -1);
  if (isEnabled()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown() ? Theme::AccentSoft() : Face());
    painter.drawRoundedRect(box, kCorner, kCorner);
    Theme::DrawEdge(painter, box, focused_ || hasFocus());
    if (isDefault()) {  // Enter presses it from every field
      painter.setBrush(Qt::NoBrush);
      painter.setPen(Theme::Accent());
      painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
    }
  }
  const QFontMetrics metrics(font());
  const int keyWidth = key_.isEmpty() ? 0 : metrics.horizontalAdvance(key_) + Gap();
  const int wordsEnd = 2 * Gap() + keyWidth + metrics.horizontalAdvance(words_);
  // The words matter more than their picture.
  const bool hasIcon = !icon_.isEmpty() && wordsEnd + Scale::Px(kIconTwips) + Gap() <= width();
  const int iconSize = hasIcon ? Scale::Px(kIconTwips) : 0;
  const int iconWidth = hasIcon ? iconSize + Gap() : 0;
  const int room = width() - 2 * Gap() - iconWidth - keyWidth;
  const QString words = metrics.elidedText(words_, Qt::ElideRight, room);
  int x = (width() - iconWidth - keyWidth - metrics.horizontalAdvance(words)) / 2;
  if (iconSize > 0) {
    painter.setOpacity(isEnabled() ? 1 : 0.4);
    painter.drawPixmap(x, (height() - iconSize) / 2, Icons::Picture(icon_, iconSize, devicePixelRatioF()));
    painter.setOpacity(1);
    x += iconWidth;
  }
  const QRect line(x, 0, width() - x, height());
  painter.setPen(isEnabled() ? Theme::Accent() : Theme::Off());
  painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, key_);
  painter.setPen(isEnabled() ? palette().color(QPalette::Active, QPalette::ButtonText) : Theme::Off());
  painter.drawText(line.adjusted(keyWidth, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, words);
}

}  // namespace quillon
