#pragma once

#include <string>
#include <string_view>

namespace quillon {

/// What a person looks for in the cells of a grid: a text in any case, an amount with or without its commas,
/// a date by its short forms. A day alone is no date: it would be found everywhere.
class FindPattern {
 public:
  FindPattern() = default;
  explicit FindPattern(const std::string& typed);

  bool IsEmpty() const { return text_.empty(); }
  bool Matches(std::string_view cell) const;

 private:
  bool HasText(std::string_view cell) const;
  bool HasFigure(std::string_view cell) const;

  std::string text_;    // in small letters
  std::string figure_;  // an amount without commas; empty when the text is none
  std::string date_;    // as cells show it; empty when the text is none
  bool isAscii_ = true;
};

}  // namespace quillon
