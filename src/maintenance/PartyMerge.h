#pragma once

#include <cstdint>
#include <string>

namespace quillon {

class CDbLink;

/// Accounts by their names, for codes differ from year to year.
struct NamedPair {
  std::string Head;
  std::string Station;
  std::string DuplicateHead;
  std::string DuplicateStation;
};

/// Merges accounts in one year. It begins and ends no transaction.
class PartyMerge {
 public:
  explicit PartyMerge(CDbLink& year) : year_(year) {}

  /// Where the year has both accounts all that names the duplicate names the original, and the duplicate
  /// goes. Where it has the duplicate alone that gets the original's name. Nothing keeps an account from
  /// being merged with itself, which deletes it.
  void Merge(const NamedPair& pair);

 private:
  /// 0 for an account that the year does not have.
  std::int64_t Find(const std::string& head, const std::string& station);
  void Rename(std::int64_t code, const NamedPair& pair);
  void Join(std::int64_t original, std::int64_t duplicate);

  /// One opening row stays, with the sum of all.
  void JoinOpenings(const std::string& original);

  CDbLink& year_;
};

}  // namespace quillon
