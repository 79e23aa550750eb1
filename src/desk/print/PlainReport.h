#pragma once

#include <string>
#include <vector>

#include "desk/print/ReportSettings.h"

namespace quillon {

/// A report as plain lines, for a printer that prints characters: columns padded with blanks, ruled with a
/// character.
struct PlainReport {
  std::string Text;  ///< lines end with LF; a form feed begins a new page
  int Pages = 1;

  /// The page, from 1, of each row of the grid; 0 for one that is not printed.
  std::vector<int> RowPages;

  static PlainReport Make(const ReportRequest& request);
};

/// The columns of characters that a text takes in a fixed-pitch font: accents and vowel signs that stand on
/// another character take none, East Asian characters two.
double DisplayWidth(std::string_view text);

}  // namespace quillon
