#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quillon {

/// The amount in words as the two objects of a cheque print it.
struct ChequeWords {
  std::string First;
  std::string Rest;
};

/// Splits the words at the last blank that lets the first part fit the width. Words that fit stay whole, and
/// so do words without a blank inside the width. `measure` gives the width of a text in the unit of `width`.
ChequeWords SplitWords(const std::string& words, double width,
                       const std::function<double(const std::string&)>& measure);

/// The font size at which lines are printed that are never split: one point less for each line that is too
/// wide for the limit, whatever the excess. `measure` gives the width of a text in a size.
double ShrunkSize(const std::vector<std::string>& lines, double size, double limit,
                  const std::function<double(const std::string&, double)>& measure);

}  // namespace quillon
