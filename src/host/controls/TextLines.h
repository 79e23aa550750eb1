#pragma once

#include <string>
#include <vector>

#include "host/values/Font.h"

namespace quillon {

/// A text in the lines in which a box shows it: broken at its line ends, and between words where a line would
/// be wider than the box. Places are UTF-16 units from the beginning of the text, widths are twips.
class TextLines {
 public:
  struct Line {
    int start = 0;
    int stop = 0;  ///< without the line end that closes it
    int end = 0;   ///< the last place of the caret in the line
    std::string text;
  };

  /// A width of 0 breaks no line.
  TextLines(const std::string& text, const Font& font, long width);

  const std::vector<Line>& All() const { return lines_; }

  /// The number of the line in which the caret stands.
  int LineAt(int place) const;

  /// How far from the left a place lies, and the place of a line that lies nearest to that.
  long Indent(int place) const;
  int PlaceNear(int line, long indent) const;

 private:
  void Wrap(const std::string& text, int start);
  std::size_t Fitting(const std::string& text) const;

  Font font_;
  long width_;
  std::vector<Line> lines_;
};

}  // namespace quillon
