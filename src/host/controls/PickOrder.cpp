#include "host/controls/PickOrder.h"

#include <algorithm>
#include <array>

#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kRanks = 3;

/// Letters and digits of any script make words; what else is in ASCII parts them.
bool IsOfWord(char c) {
  const bool letter = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
  return letter || static_cast<unsigned char>(c) >= 0x80;
}

bool HasWord(std::string_view text, std::string_view beginning) {
  for (std::size_t at = text.find(beginning); at != std::string_view::npos;
       at = text.find(beginning, at + 1)) {
    if (at == 0 || !IsOfWord(text[at - 1])) return true;
  }
  return false;
}

}  // namespace

void PickOrder::Add(std::string_view name, std::string_view beside) {
  lines_.push_back({text::Lower(name), text::Lower(beside)});
}

std::optional<int> PickOrder::Rank(const Line& line, const std::string& typed,
                                   const std::vector<std::string>& words) {
  if (line.name.starts_with(typed)) return 0;
  int rank = 1;
  for (const std::string& word : words) {
    if (word.empty() || HasWord(line.name, word)) continue;
    if (!HasWord(line.beside, word)) return {};
    rank = 2;
  }
  return rank;
}

std::vector<int> PickOrder::Find(std::string_view typed) const {
  const std::string wanted = text::Lower(text::Trim(typed));
  const std::vector<std::string> words = text::Split(wanted, " ");
  std::array<std::vector<int>, kRanks> found;
  for (std::size_t line = 0; line < lines_.size(); ++line) {
    const std::optional<int> rank = Rank(lines_[line], wanted, words);
    if (rank) found[static_cast<std::size_t>(*rank)].push_back(static_cast<int>(line));
  }
  for (std::size_t rank = 1; rank < kRanks; ++rank) {
    found[0].insert(found[0].end(), found[rank].begin(), found[rank].end());
  }
  return found[0];
}

}  // namespace quillon
