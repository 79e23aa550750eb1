#pragma once

#include <string>

class QPageLayout;

namespace quillon {

inline constexpr int kTwipsPerInch = 1440;

/// Width and height in twips.
struct PaperExtent {
  double Width = 0;
  double Height = 0;
};

/// The sheet of a paper number as printers count them (9 is A4; an unknown one counts as A4) and an
/// orientation of IPrinter.
PaperExtent PaperSizeOf(int paper, int orientation);

/// Its name for a queue: "iso_a4_210x297mm".
std::string PaperName(int paper);

/// The same without margins, for a writer of pages.
QPageLayout PageLayout(int paper, int orientation);

}  // namespace quillon
