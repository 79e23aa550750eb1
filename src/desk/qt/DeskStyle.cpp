#include "desk/qt/DeskStyle.h"

#include "desk/qt/Scale.h"

namespace quillon {

DeskStyle::DeskStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

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
