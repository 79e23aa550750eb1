#pragma once

#include <string>

namespace quillon {

/// One of the printers that can be chosen.
struct PrinterDevice {
  std::string DeviceName;

  friend bool operator==(const PrinterDevice&, const PrinterDevice&) = default;
};

}  // namespace quillon
