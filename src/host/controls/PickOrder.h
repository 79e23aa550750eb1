#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The lines of a pick list that a typed text finds. Each typed word is the beginning of a word of the name,
/// or of what stands beside the name, as its station; in any case.
class PickOrder {
 public:
  /// The next line of the list, counted from 0.
  void Add(std::string_view name, std::string_view beside);
  void Clear() { lines_.clear(); }
  int Count() const { return static_cast<int>(lines_.size()); }

  /// The best first: names that begin with the text, then those with all the words, then those that need what
  /// stands beside them; alike ones in the list's order. An empty text finds all.
  std::vector<int> Find(std::string_view typed) const;

 private:
  struct Line {
    std::string name;  // in small letters
    std::string beside;
  };

  static std::optional<int> Rank(const Line& line, const std::string& typed,
                                 const std::vector<std::string>& words);

  std::vector<Line> lines_;
};

}  // namespace quillon
