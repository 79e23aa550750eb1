#pragma once

#include <string>

namespace quillon {

/// A font as the screens and the printer name it; the size is in points.
struct Font {
  std::string Name = "Tahoma";
  double Size = 8.25;
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace quillon
