#pragma once

#include <functional>
#include <string_view>
#include <vector>

namespace quillon {

/// Lines of a text, none wider than `width` by `measure`. Line ends divide, then blanks; only a word that is
/// too wide by itself is cut. A wrapped line leaves the blank it was divided at; the views point into `text`.
struct WrappedLine {
  std::string_view Text;
  bool EndsParagraph = true;
};
std::vector<WrappedLine> WrapText(std::string_view text, double width,
                                  const std::function<double(std::string_view)>& measure);

}  // namespace quillon
