#pragma once

#include "host/forms/Runtime.h"

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

}  // namespace quillon
