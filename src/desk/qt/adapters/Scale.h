#pragma once

#include <QFont>
#include <QRect>

#include "host/controls/Control.h"

namespace quillon {

/// From the twips of the forms to the pixels of the screen: 15 to a pixel at 100 %, times the zoom that the
/// user chose for the whole desk.
class Scale {
 public:
  static constexpr int kLeastPercent = 90;
  static constexpr int kMostPercent = 200;

  static int Percent();

  /// A value outside the limits is brought inside.
  static void SetPercent(int percent);

  /// For drawing a form elsewhere than on the screen: any value, to be taken back afterwards.
  static void SetDrawing(int percent);

  static int Px(long twips);
  static long Twips(int pixels);

  /// Left and right edges are rounded, not widths, so that neighbours meet.
  static QRect Rect(const Control& control);
  static QFont FontOf(const Font& font);
};

}  // namespace quillon
