#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/data/CDbLink.h"
#include "host/values/LaterTexts.h"

namespace quillon {

/// The narrations of a list of entries, in the list's order. They are read in blocks of neighbours when
/// somebody looks at one: read with the entries, they would be most of the work.
class NarrationTexts : public LaterTexts {
 public:
  /// The database whose FANar they stand in. Once it is closed what was not read cannot be read any more.
  explicit NarrationTexts(CDbLink& db);

  /// The next narration of the list; answers its key.
  std::int64_t Add(std::int64_t narrationId);

  /// Throws DbError. A narration that is not in the books is empty.
  std::string_view Read(std::int64_t key) override;
  std::optional<std::string_view> Known(std::int64_t key) const override;

 private:
  using Block = std::vector<std::string>;

  void ReadBlock(std::size_t block);

  CDbLink& db_;
  std::weak_ptr<const void> open_;
  std::vector<std::int64_t> ids_;
  std::vector<std::unique_ptr<Block>> blocks_;
};

}  // namespace quillon
