#pragma once

#include <string_view>

#include "host/values/Font.h"

namespace quillon {

/// How wide and high texts are, in twips: the same figures for screens, printer and reports. Needs a running
/// QGuiApplication.
class TextMeasure {
 public:
  /// The width of one line of text.
  static double Width(const Font& font, std::string_view text);

  /// From one line to the next.
  static double LineHeight(const Font& font);

  /// From the top of a line to its baseline.
  static double Ascent(const Font& font);
};

}  // namespace quillon
