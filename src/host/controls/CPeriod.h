#pragma once

#include "host/controls/CTextPlus.h"

namespace quillon {

/// A pair of date fields with a validity check.
class CPeriod : public Control {
 public:
  CPeriod(Control& parent, std::string name, int index = kNoIndex);

  const char* Kind() const override { return "CPeriod"; }

  /// "dd-MMM-yyyy" once they have been left; the two parts of the control.
  CTextPlus Date1;
  CTextPlus Date2;

  /// True when both are dates, each lies in the range that the host allows and the first is not after the
  /// second; otherwise a message tells and the focus goes to the field.
  bool ValidatePeriod();

  /// The part of that name.
  CTextPlus& Part(const std::string& name);
  State Describe() const override;
};

}  // namespace quillon
