#include "desk/services/DeskYear.h"

#include "host/values/Errors.h"

namespace quillon {

const FirmYear& DeskYear::Bound() const {
  if (year_ == nullptr) throw HostError("No financial year is open");
  return *year_;
}

void DeskYear::Init(bool /*flag*/) { year_ = nullptr; }

void DeskYear::OpenYear(int startYear, bool& ok) {
  ok = firm_.HasYear(startYear);
  if (ok) year_ = &firm_.OpenYear(startYear);
}

}  // namespace quillon
