#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/services/IPrinter.h"
#include "host/values/Font.h"

namespace quillon {

/// One line of text on a page. Places are twips from the page's top left corner, colours 0xBBGGRR.
struct ReportText {
  double X = 0;
  double Baseline = 0;
  std::string Text;
  std::size_t Font = 0;  ///< number in ReportPages::Fonts
  long Color = 0;
};

/// A horizontal or vertical rule.
struct ReportLine {
  double X1 = 0;
  double Y1 = 0;
  double X2 = 0;
  double Y2 = 0;
  double Thickness = 0;
  long Color = 0;
};

struct ReportFill {
  double X = 0;
  double Y = 0;
  double Width = 0;
  double Height = 0;
  long Color = 0;
};

/// What is drawn on a page: fills first, then lines, then texts.
struct ReportPage {
  std::vector<ReportFill> Fills;
  std::vector<ReportLine> Lines;
  std::vector<ReportText> Texts;
};

/// A report laid out; preview and paper draw the same pages.
struct ReportPages {
  std::string Title;
  int PaperSize = IPrinter::kA4;
  int Orientation = IPrinter::kPortrait;
  double Width = 0;   ///< of a page, in twips
  double Height = 0;  ///< of a page, in twips
  std::vector<quillon::Font> Fonts;
  std::vector<ReportPage> Pages;

  /// The page, from 1, on which each row of the grid ends; 0 for one that is not printed.
  std::vector<int> RowPages;

  /// The number of a font, which is entered when it is new.
  std::size_t FontNumber(const quillon::Font& font);
};

}  // namespace quillon
