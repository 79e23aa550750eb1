#pragma once

#include <string>

#include "host/forms/Form.h"
#include "host/values/Date.h"

namespace quillon {

/// What the day book shows: the choices of the module's filter of a book, as pieces of SQL on FAData's alias
/// a and FAMaster's alias b, and in words.
class DayBookFilter {
 public:
  /// All lines of a voucher of which one is let through, and not the first of these alone.
  bool WholeVouchers = true;

  bool DayTotals = false;
  bool Documents = false;

  /// Takes the choices that the dialog was left with.
  void Take(Form& dialog);

  /// Lets all entries through again.
  void Clear() { *this = DayBookFilter(); }
  bool IsInForce() const { return !condition_.empty(); }

  /// Of the entries in a period.
  std::string Condition(Date first, Date last) const;

  /// Empty while nothing is kept out.
  const std::string& Words() const { return words_; }

 private:
  void Add(const std::string& condition, const std::string& words);
  void TakeList(Form& dialog, const char* member, const char* column, const char* title);
  void TakeRange(Form& dialog, bool debits);

  bool namesBooks_ = false;
  std::string condition_;
  std::string words_;
};

}  // namespace quillon
