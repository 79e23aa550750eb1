#include "desk/qt/adapters/DeskStyle.h"

#include "desk/qt/adapters/Scale.h"

namespace quillon {

namespace {

constexpr long kLineGap = 75;

}  // namespace

DeskStyle::DeskStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QSize DeskStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  // The lines of lists and menus would touch each other.
  if (type == CT_ItemViewItem || type == CT_MenuItem) size.rheight() += Scale::Px(kLineGap);
  if (type == CT_MenuBarItem) size += QSize(Scale::Px(kLineGap), Scale::Px(2 * kLineGap));
  return size;
}

int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int plain = QProxyStyle::pixelMetric(metric, option, widget);
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_ScrollBarExtent:
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ToolBarIconSize:
    case PM_MenuBarHMargin:
    case PM_MenuHMargin:
      return plain * Scale::Percent() / 100;
    default:
      return plain;
  }
}

}  // namespace quillon
