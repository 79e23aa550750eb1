#include "desk/print/ReportPages.h"

#include <algorithm>

namespace quillon {

std::size_t ReportPages::FontNumber(const quillon::Font& font) {
  const auto found = std::find(Fonts.begin(), Fonts.end(), font);
  const auto number = static_cast<std::size_t>(found - Fonts.begin());
  if (found == Fonts.end()) Fonts.push_back(font);
  return number;
}

}  // namespace quillon
