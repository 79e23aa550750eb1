#pragma once

#include <string>

#include "desk/print/ReportPages.h"
#include "desk/print/Spooler.h"

namespace quillon {

/// Hands finished pages to a printer's queue, corrected by the printer's calibration where it has one. The
/// file of the pages stays as it is.
class PageSender {
 public:
  /// `file` holds the pages. Pages that are given as their file alone go as they are. Answers the job's name
  /// in the queue, empty for a file that stays. Throws HostError.
  static std::string Send(const ReportPages& pages, const std::string& file, const Spooler::Job& job);
};

}  // namespace quillon
