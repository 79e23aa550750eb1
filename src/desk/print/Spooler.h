#pragma once

#include <string>
#include <vector>

namespace quillon {

/// The machine's print spooler. A machine without one has no printers, and files stay files.
class Spooler {
 public:
  static std::vector<std::string> Printers();

  /// Hands a file to a printer; nothing happens on a machine without a spooler. Throws HostError when the
  /// spooler refuses.
  static void Send(const std::string& file, const std::string& printer);
};

}  // namespace quillon
