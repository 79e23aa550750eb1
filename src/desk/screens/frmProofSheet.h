#pragma once

#include <memory>
#include <vector>

#include "host/controls/Label.h"
#include "host/forms/Form.h"

namespace quillon {

/// What a printer is measured by: an A4 sheet with three crosses and rules in millimetres and inches. It is
/// only printed.
class frmProofSheet : public Form {
 public:
  /// The printer's name stands on the sheet.
  explicit frmProofSheet(const std::string& printer);

 private:
  void DrawCross(double left, double top);
  void DrawRule(double left, double top, double length, double unit, bool across);
  void Write(double left, double top, double width, const std::string& text);

  std::vector<std::unique_ptr<Label>> words_;
};

}  // namespace quillon
