#pragma once

#include <QProxyStyle>

namespace quillon {

/// The toolkit's plain style, whose marks, arrows and bars grow with the desk's zoom.
class DeskStyle : public QProxyStyle {
 public:
  DeskStyle();

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace quillon
