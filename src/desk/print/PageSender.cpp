#include "desk/print/PageSender.h"

#include <filesystem>

#include "desk/print/ReportPainter.h"
#include "host/services/Calibration.h"
#include "host/services/IPrinter.h"

namespace quillon {

void PageSender::Send(const ReportPages& pages, const std::string& file, const Spooler::Job& job) {
  const bool goesToQueue = !job.Printer.empty() && job.Printer != IPrinter::kPdfFile;
  const Calibration calibration = goesToQueue ? Calibration::Of(job.Printer) : Calibration();
  if (calibration.IsNone() || pages.Pages.empty()) {
    Spooler::Send(file, job);
    return;
  }
  const std::string folder = std::filesystem::path(file).parent_path().string();
  const std::string corrected = ReportPainter::WritePdf(pages, folder, "corrected", calibration);
  Spooler::Send(corrected, job);
  std::error_code left;
  std::filesystem::remove(corrected, left);
}

}  // namespace quillon
