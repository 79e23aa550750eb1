#pragma once

#include <string>

#include "host/forms/Runtime.h"
#include "host/services/IApp.h"

namespace quillon {

/// The busy mouse pointer for the length of a block.
class BusyPointer {
 public:
  BusyPointer() : before_(gRuntime->MousePointer()) { gRuntime->SetMousePointer(kPointerBusy); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer() { gRuntime->SetMousePointer(before_); }

 private:
  int before_;
};

/// The host's busy state for the length of a block.
class BusyJob {
 public:
  explicit BusyJob(const std::string& text = "") { gApp->BeginBusy(text); }
  BusyJob(const BusyJob&) = delete;
  BusyJob& operator=(const BusyJob&) = delete;
  ~BusyJob() { gApp->EndBusy(); }
};

}  // namespace quillon
