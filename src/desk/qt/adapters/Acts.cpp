#include "desk/qt/adapters/Acts.h"

#include <QCoreApplication>
#include <QEventLoop>

#include "desk/qt/adapters/Meanwhile.h"
#include "host/controls/Control.h"
#include "host/forms/Runtime.h"
#include "host/forms/Unbroken.h"

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
  if (gRuntime == nullptr || Meanwhile::IsOn()) return;
  Guarded(act);
  Guarded([] { gRuntime->DeliverKeys(); });
  if (Afterwards()) Afterwards()();
}

void Acts::LetPaint() {
  if (Meanwhile::IsOn()) return;
  const Meanwhile::Block painting(false);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool Acts::PaintAndListen(bool mayBreak) {
  constexpr int kMilliseconds = 10;
  const Meanwhile::Block painting(mayBreak && !Unbroken::IsOn());
  QCoreApplication::processEvents(QEventLoop::AllEvents, kMilliseconds);
  return painting.IsEscaped();
}

bool Acts::IsPainting() { return Meanwhile::IsOn(); }

void Acts::SetAfterwards(std::function<void()> afterwards) { Afterwards() = std::move(afterwards); }

}  // namespace quillon
