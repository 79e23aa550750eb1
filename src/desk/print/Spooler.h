#pragma once

#include <string>
#include <vector>

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
  };

  /// Hands a file to a printer; nothing happens on a machine without a spooler. Throws HostError when the
  /// spooler refuses.
  static void Send(const std::string& file, const Job& job);
};

}  // namespace quillon
