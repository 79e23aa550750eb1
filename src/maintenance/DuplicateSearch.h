#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillon {

class CDbLink;

/// An account as a year knows it.
struct NamedAccount {
  std::int64_t Code = 0;
  std::string Head;
  std::string Station;
};

/// An account that is to stay, and one that is to become it.
struct AccountPair {
  NamedAccount Original;
  NamedAccount Duplicate;
};

/// Finds accounts that were entered twice.
class DuplicateSearch {
 public:
  explicit DuplicateSearch(CDbLink& db) : db_(db) {}

  /// Missing stations and aliases become empty ones in the books, so that they compare.
  void BlankNulls();

  /// Accounts of one head and station; the lowest code is the original.
  std::vector<AccountPair> ByName();

  /// Accounts of one alias; the first by head, station and code is the original.
  std::vector<AccountPair> ByAlias();

 private:
  CDbLink& db_;
};

}  // namespace quillon
