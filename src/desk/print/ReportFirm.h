#pragma once

#include <string>
#include <vector>

namespace quillon {

/// Whose report it is, for the headings.
struct ReportFirm {
  std::string Name;
  std::vector<std::string> AddressLines;

  /// The firm that is open in the desk; empty when none is.
  static ReportFirm Current();
};

}  // namespace quillon
