#pragma once

#include <string>

#include "host/values/Date.h"

namespace quillon {

/// A modal dialog for one date or a date range.
class CDateDialog {
 public:
  void SingleDate(bool single) { single_ = single; }
  void DateCaption(const std::string& caption) { caption_ = caption; }
  void Title(const std::string& title) { title_ = title; }
  void SetDate1(Date date) { date1_ = date; }
  void SetDate2(Date date) { date2_ = date; }

  Date Date1() const { return date1_; }
  Date Date2() const { return date2_; }

  /// True when accepted; otherwise the dates stay as they were.
  bool Show();

 private:
  bool single_ = false;
  std::string caption_;
  std::string title_;
  Date date1_;
  Date date2_;
};

}  // namespace quillon
