#pragma once

#include <string>
#include <vector>

#include "host/services/IPrinter.h"
#include "host/services/PrinterDevice.h"

namespace quillon {

/// The machine's print spooler. A machine without one has no printers, and files stay files.
class Spooler {
 public:
  /// The printers that jobs can go to; the PDF file is the last of them.
  static std::vector<PrinterDevice> Printers();

  struct Job {
    std::string Printer;  ///< the name of the PDF file, or none, leaves the file where it is
    int Copies = 1;
    bool Monochrome = false;
    int Paper = IPrinter::kA4;
  };

  /// Hands a file to a printer, to be printed as large as it is, and answers the job's name, "Laser-12";
  /// empty for a file that stays. Throws HostError when there is no spooler, or when it refuses.
  static std::string Send(const std::string& file, const Job& job);
};

}  // namespace quillon
