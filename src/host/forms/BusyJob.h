#pragma once

#include <string>

#include "host/services/IApp.h"

namespace quillon {

/// The host's busy state for the length of a block.
class BusyJob {
 public:
  explicit BusyJob(const std::string& text = "") { gApp->BeginBusy(text); }
  BusyJob(const BusyJob&) = delete;
  BusyJob& operator=(const BusyJob&) = delete;
  ~BusyJob() { gApp->EndBusy(); }
};

}  // namespace quillon
