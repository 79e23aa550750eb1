#pragma once

#include <map>
#include <string>
#include <vector>

#include "desk/firebird/FirebirdLink.h"
#include "desk/sample/SampleVoucher.h"

namespace quillon {

/// Writes vouchers into a year and keeps the balances that come of them.
class SampleBooks {
 public:
  explicit SampleBooks(FirebirdLink& year) : year_(year) {}

  /// Answers the voucher's id.
  int Post(const SampleVoucher& voucher);

  /// The opening balance of an account; nothing is written for zero.
  void PostOpening(int account, Amount value, Date day);

  /// The mark that the books are closed up to a day.
  void PostClosing(Date day);

  /// By account, opening balances and all lines but memoranda.
  const std::map<int, Amount>& Balances() const { return balances_; }
  int Vouchers() const { return vouchers_; }

  /// The next number of a transaction type.
  std::string NextNumber(const std::string& type);

 private:
  void PostLines(const SampleVoucher& voucher, int id);
  void PostDocuments(const SampleVoucher& voucher, int id);
  void PostLine(const SampleVoucher& voucher, int id, std::size_t line, const std::string& number);

  FirebirdLink& year_;
  std::map<int, Amount> balances_;
  std::map<std::string, int> numbers_;
  int vouchers_ = 0;
  int documents_ = 0;
  Date day_;
  int serial_ = 0;
};

}  // namespace quillon
