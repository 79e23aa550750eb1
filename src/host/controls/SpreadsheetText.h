#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// A cell as a spreadsheet reads it from the clipboard: a date as "2024-04-05", a figure without its groups
/// and with its sign in front, a text that holds tabs or several lines in quotes. Only the cells of a column
/// of figures are figures.
std::string SpreadsheetText(std::string_view cell, bool isFigure);

/// The lines of a pasted text, each as far as its first tab, a date as the screens write it; the line that
/// follows the last line's end is none.
std::vector<std::string> PastedLines(const std::string& text);

}  // namespace quillon
