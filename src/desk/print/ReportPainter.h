#pragma once

#include <string>

#include "desk/print/ReportPages.h"
#include "host/services/Calibration.h"

class QPainter;

namespace quillon {

/// Draws laid out pages.
class ReportPainter {
 public:
  /// Draws page `page`, counted from 0, on a painter whose unit is a twip.
  static void Paint(const ReportPages& pages, std::size_t page, QPainter& painter);

  /// Writes all pages to a PDF STEM-1.pdf, STEM-2.pdf … in the folder and tells its name, corrected for a
  /// printer. Throws HostError.
  static std::string WritePdf(const ReportPages& pages, const std::string& folder, const std::string& stem,
                              const Calibration& calibration = {});
};

}  // namespace quillon
