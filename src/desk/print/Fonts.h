#pragma once

#include <string>

#include "host/values/Font.h"

class QFont;

namespace quillon {

/// Makes the fonts that screens and paper draw with. Texts measure alike on every machine: a font that the
/// machine lacks is replaced by a metric-compatible one, Devanagari falls back to a font that has it.
class Fonts {
 public:
  /// Whether the machine has the font or a stand-in of the same widths. The stand-ins that the desk is
  /// installed with count as there.
  static bool Has(const std::string& name);

  /// Needs a running QGuiApplication. Kerning, hinting and ligatures are off, so that a text is as wide as
  /// its characters.
  static QFont Of(const Font& font);
};

}  // namespace quillon
