#pragma once

#include "desk/print/ReportPages.h"
#include "desk/print/ReportSettings.h"

namespace quillon {

/// Lays a filled grid out on pages: texts, rules and fills with their places, drawn by nobody yet.
class ReportLayout {
 public:
  static ReportPages Make(const ReportRequest& request);
};

}  // namespace quillon
