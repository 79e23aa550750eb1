#include "desk/tour/DeskSnapshot.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QWidget>
#include <algorithm>

#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr long kTitleHeight = 420;
constexpr long kTitleIndent = 150;

/// How many windows stand below this one.
int Depth(const QWidget& window) {
  int depth = 0;
  for (const QWidget* below = window.parentWidget(); below != nullptr; below = below->parentWidget()) {
    if (below->isWindow()) ++depth;
  }
  return qobject_cast<const QMenu*>(&window) != nullptr ? depth + 100 : depth;
}

void DrawTitle(QPainter& painter, const QWidget& window, const QRect& place) {
  const int height = Scale::Px(kTitleHeight);
  const QRect strip(place.left(), place.top() - height, place.width(), height);
  painter.fillRect(strip, Theme::Accent());
  painter.setPen(Theme::Surface());
  painter.setFont(window.font());
  painter.drawText(strip.adjusted(Scale::Px(kTitleIndent), 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                   window.windowTitle());
}

}  // namespace

QImage DeskSnapshot(QWidget& desk) {
  QImage picture = desk.grab().toImage();
  QWidgetList windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window != &desk && window->isVisible()) windows << window;
  }
  std::stable_sort(windows.begin(), windows.end(),
                   [](const QWidget* left, const QWidget* right) { return Depth(*left) < Depth(*right); });
  QPainter painter(&picture);
  for (QWidget* window : windows) {
    const QRect place(window->mapToGlobal(QPoint()) - desk.mapToGlobal(QPoint()), window->size());
    painter.drawPixmap(place.topLeft(), window->grab());
    if (qobject_cast<QMenu*>(window) == nullptr) DrawTitle(painter, *window, place);
  }
  return picture;
}

}  // namespace quillon
