#include "desk/qt/Acts.h"

#include "host/Control.h"
#include "host/Runtime.h"

namespace quillon {

namespace {

std::function<void()>& Afterwards() {
  static std::function<void()> afterwards;
  return afterwards;
}

void Guarded(const std::function<void()>& act) {
  try {
    gRuntime->Act(act);
  } catch (const Refused&) {
    // A click on what is covered or off does nothing.
    return;
  }
}

}  // namespace

void Acts::Run(const std::function<void()>& act) {
  if (gRuntime == nullptr) return;
  Guarded(act);
  Guarded([] { gRuntime->DeliverKeys(); });
  if (Afterwards()) Afterwards()();
}

void Acts::SetAfterwards(std::function<void()> afterwards) { Afterwards() = std::move(afterwards); }

}  // namespace quillon
