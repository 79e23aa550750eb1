#pragma once

#include <string>
#include <utility>
#include <vector>

namespace quillon {

/// A bag of named texts. Names ignore case and keep the order in which they came.
class CNameValues {
 public:
  void SetItem(const std::string& name, const std::string& value);

  /// Empty for an unknown name.
  std::string Item(const std::string& name) const;
  const std::vector<std::pair<std::string, std::string>>& Items() const { return items_; }

  /// The whole bag as one text that Load reads back; any value survives, and it never contains "<|||>".
  std::string Text() const;

  /// Replaces the bag; throws HostError when the text is damaged, and the bag then stays as it was.
  void Load(const std::string& text);

 private:
  std::vector<std::pair<std::string, std::string>> items_;
};

}  // namespace quillon
