#pragma once

#include <string>

#include "host/controls/CTextPlus.h"
#include "host/controls/Frame.h"
#include "host/forms/Form.h"

namespace quillon {

/// The first and the last date of a run, in a frame of their own.
class DateRangeFields {
 public:
  DateRangeFields(Form& form, const std::string& frame);

  Frame fraDates;
  CTextPlus txpDate1;
  CTextPlus txpDate2;

  /// The frame's corner, and its width, on the form; answers its height.
  long Place(long left, long top, long width);

  /// Whether both are dates in their order; else tells what is wrong and goes to it.
  bool Check();

  /// Empty for a field without a date.
  Date First() const;

  /// The pair that follows "between".
  std::string Sql() const;
};

}  // namespace quillon
