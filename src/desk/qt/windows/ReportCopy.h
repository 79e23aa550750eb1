#pragma once

#include <string>

#include "desk/print/DeskReports.h"
#include "desk/print/ReportPages.h"

namespace quillon {

/// What a preview needs of a report, kept after the engine has let go of it.
struct ReportCopy {
  ReportPages Sheets;
  std::string File;  ///< the pages as a PDF
  std::string Csv;   ///< the rows for a spreadsheet

  static ReportCopy Of(const ReportShown& report);
};

}  // namespace quillon
