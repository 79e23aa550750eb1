#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillon {

/// Texts that stand elsewhere until somebody looks at them, known by keys of their own. Many cells may share
/// one. What it has answered holds as long as it lives. Not for use across threads.
class LaterTexts {
 public:
  LaterTexts() = default;
  LaterTexts(const LaterTexts&) = delete;
  LaterTexts& operator=(const LaterTexts&) = delete;
  virtual ~LaterTexts() = default;

  /// The text of that key; one that is not there yet is read, its neighbours with it. Throws what the reading
  /// throws.
  virtual std::string_view Read(std::int64_t key) = 0;

  /// The text as far as it was read.
  virtual std::optional<std::string_view> Known(std::int64_t key) const = 0;
};

}  // namespace quillon
