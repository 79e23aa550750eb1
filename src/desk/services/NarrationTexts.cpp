#include "desk/services/NarrationTexts.h"

#include <algorithm>
#include <unordered_map>

#include "host/data/CDataSet.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr std::size_t kBlock = 256;

/// Narrations of other accounts that are read along rather than asked around.
constexpr std::int64_t kWidestGap = 16;

/// The condition that finds the narrations, and few others.
std::string ConditionOf(std::vector<std::int64_t> ids) {
  std::sort(ids.begin(), ids.end());
  std::string condition;
  for (auto first = ids.begin(); first != ids.end();) {
    auto last = first;
    while (std::next(last) != ids.end() && *std::next(last) - *last <= kWidestGap) ++last;
    if (!condition.empty()) condition += " or ";
    condition += "NarrationID between " + std::to_string(*first) + " and " + std::to_string(*last);
    first = std::next(last);
  }
  return condition;
}

}  // namespace

NarrationTexts::NarrationTexts(CDbLink& db) : db_(db), open_(db.Life()) {}

std::int64_t NarrationTexts::Add(std::int64_t narrationId) {
  ids_.push_back(narrationId);
  blocks_.resize((ids_.size() + kBlock - 1) / kBlock);
  return static_cast<std::int64_t>(ids_.size()) - 1;
}

/// A block that was read while its list still grew lacks the last of its narrations; those that it has stay
/// in their places.
void NarrationTexts::ReadBlock(std::size_t block) {
  if (open_.expired()) throw HostError("The narrations cannot be read any more: the books are closed.");
  const std::size_t start = block * kBlock;
  const std::size_t read = blocks_[block] ? blocks_[block]->size() : 0;
  const auto first = ids_.begin() + static_cast<std::ptrdiff_t>(start + read);
  const auto last = ids_.begin() + static_cast<std::ptrdiff_t>(std::min(start + kBlock, ids_.size()));
  std::unordered_map<std::int64_t, std::string> found;
  CDataSet rows;
  for (rows.Open("Select NarrationID,Narration from FANar where " + ConditionOf({first, last}), db_);
       !rows.Eof(); rows.MoveNext()) {
    found.emplace(rows.Field(std::size_t{0}).ToInteger(), rows.Field(std::size_t{1}).ToText());
  }
  if (!blocks_[block]) {
    blocks_[block] = std::make_unique<Block>();
    blocks_[block]->reserve(kBlock);
  }
  for (auto id = first; id != last; ++id) blocks_[block]->push_back(found[*id]);
}

std::string_view NarrationTexts::Read(std::int64_t key) {
  if (!Known(key)) ReadBlock(static_cast<std::size_t>(key) / kBlock);
  return *Known(key);
}

std::optional<std::string_view> NarrationTexts::Known(std::int64_t key) const {
  const auto place = static_cast<std::size_t>(key);
  const std::unique_ptr<Block>& block = blocks_[place / kBlock];
  if (!block || place % kBlock >= block->size()) return {};
  return (*block)[place % kBlock];
}

}  // namespace quillon
