#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "desk/firebird/BooksDigest.h"
#include "host/data/CDbLink.h"
#include "host/values/Amount.h"

namespace quillon {

/// What a run did to a year, in words: what its screen's rules explain, and what they don't.
struct BulkFindings {
  std::vector<std::string> AsItWorks{};
  std::vector<std::string> Unexplained{};
};

/// Holds a year after a run against the year before it.
class BulkCheck {
 public:
  /// Reads the year before the run; `account` is the one that the screen works for, 0 for a merge.
  BulkCheck(CDbLink& year, std::string formKey, std::int64_t account);

  /// Reads it after the run. `changes` are the rows that differ.
  BulkFindings Compare(const std::vector<RowChange>& changes) const;

 private:
  using Sums = std::map<std::int64_t, Amount>;

  struct State {
    Sums Balances;                   ///< by account
    Sums Unbalanced;                 ///< vouchers that are not 0 in sum
    std::set<std::int64_t> Own;      ///< vouchers with a line that names the account
    std::set<std::int64_t> Reached;  ///< the accounts of these
    std::set<std::int64_t> Lost;     ///< accounts of entries that the masters do not have
  };

  State Read() const;
  std::string NameOf(std::int64_t account) const;
  void CompareBalances(const Sums& after, BulkFindings& findings) const;
  void CompareVouchers(const State& after, const std::vector<RowChange>& changes,
                       BulkFindings& findings) const;

  CDbLink& year_;
  std::string formKey_;
  std::int64_t account_;
  State before_;
};

}  // namespace quillon
