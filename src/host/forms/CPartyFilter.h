#pragma once

#include <string>

namespace quillon {

/// The host's dialog that selects parties.
class CPartyFilter {
 public:
  /// The alias of the masters in the texts; "b" unless given another.
  void SetAlias(const std::string& alias) { alias_ = alias; }

  /// True on OK.
  bool Show();

  /// The condition on the masters, or empty for all; its words; the sort and join texts.
  const std::string& Clause() const { return clause_; }
  const std::string& Caption() const { return caption_; }
  const std::string& OrderBy() const { return orderBy_; }
  const std::string& JoinCnd() const { return joinCnd_; }

 private:
  std::string alias_ = "b";
  std::string clause_;
  std::string caption_;
  std::string orderBy_;
  std::string joinCnd_;
};

}  // namespace quillon
