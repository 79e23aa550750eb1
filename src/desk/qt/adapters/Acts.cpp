#include "desk/qt/adapters/Acts.h"

#include <QCoreApplication>
#include <QEventLoop>

#include "host/controls/Control.h"
#include "host/forms/Runtime.h"

namespace quillon {

namespace {

std::function<void()>& Afterwards() {
  static std::function<void()> afterwards;
  return afterwards;
}

bool painting = false;

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
  if (gRuntime == nullptr || painting) return;
  Guarded(act);
  Guarded([] { gRuntime->DeliverKeys(); });
  if (Afterwards()) Afterwards()();
}

void Acts::LetPaint() {
  if (painting) return;
  painting = true;
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  painting = false;
}

void Acts::SetAfterwards(std::function<void()> afterwards) { Afterwards() = std::move(afterwards); }

}  // namespace quillon
