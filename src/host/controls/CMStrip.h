#pragma once

#include <string>

#include "host/controls/Control.h"

namespace quillon {

/// A strip that shows the details of one account, given its code; 0 blanks it.
class CMStrip : public Control {
 public:
  using Control::Control;

  const char* Kind() const override { return "CMStrip"; }

  Property<long> Code{*this, "Code"};

  /// What the strip shows; empty for code 0 and for a code that no account has.
  const std::string& Details() const { return details_; }

  /// Opens the account's master record, or its full details, in the host.
  void OpenMaster();
  void ShowDetails();

  State Describe() const override;

 protected:
  void PropertyChanged(const PropertyBase& property) override;

 private:
  std::string details_;
};

}  // namespace quillon
