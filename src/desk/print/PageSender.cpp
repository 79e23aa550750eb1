#include "desk/print/PageSender.h"

#include <filesystem>

#include "desk/print/ReportPainter.h"
#include "host/services/Calibration.h"
#include "host/services/IPrinter.h"

namespace quillon {

namespace {

/// A file that goes with its block, also when the queue refuses it.
class FileHold {
 public:
  explicit FileHold(std::string file) : file_(std::move(file)) {}
  FileHold(const FileHold&) = delete;
  FileHold& operator=(const FileHold&) = delete;
  ~FileHold() {
    std::error_code left;
    std::filesystem::remove(file_, left);
  }

 private:
  std::string file_;
};

}  // namespace

std::string PageSender::Send(const ReportPages& pages, const std::string& file, const Spooler::Job& job) {
  const bool goesToQueue = !job.Printer.empty() && job.Printer != IPrinter::kPdfFile;
  const Calibration calibration = goesToQueue ? Calibration::Of(job.Printer) : Calibration();
  if (calibration.IsNone() || pages.Pages.empty()) return Spooler::Send(file, job);
  const std::string folder = std::filesystem::path(file).parent_path().string();
  const std::string corrected = ReportPainter::WritePdf(pages, folder, "corrected", calibration);
  const FileHold hold(corrected);
  return Spooler::Send(corrected, job);
}

}  // namespace quillon
