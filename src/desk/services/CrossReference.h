#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "host/data/CDbLink.h"

namespace quillon {

/// The other side of a voucher's line: an account and its head; code 0 when there is none.
struct OtherSide {
  std::int64_t Code = 0;
  std::string Head;
};

/// The account of the voucher's largest line on the side opposite to the amount's. A line of amount 0 has no
/// other side.
OtherSide FindOtherSide(CDbLink& db, std::int64_t voucherId, Amount amount);

/// The other sides of many entries, read by one statement when the first of them is asked for.
class ExpectedSides {
 public:
  /// The entries are the lines of FAData, named a, that meet the condition.
  ExpectedSides(CDbLink& db, std::string condition) : db_(db), condition_(std::move(condition)) {}

  bool IsOf(const CDbLink& db) const { return &db == &db_; }

  /// As FindOtherSide. What is not among the entries is asked for by itself.
  OtherSide Find(std::int64_t voucherId, Amount amount);

 private:
  struct Line {
    Amount Value;
    std::int64_t Number = 0;
    const std::string* Head = nullptr;
    std::int64_t Code = 0;
  };
  struct Sides {
    Line Debit;
    Line Credit;
  };

  void Read();
  void ReadHeads();
  static void Take(Line& largest, const Line& line);

  CDbLink& db_;
  std::string condition_;
  bool isRead_ = false;
  std::unordered_map<std::int64_t, std::string> heads_;
  std::unordered_map<std::int64_t, Sides> sides_;
};

}  // namespace quillon
