#include "host/forms/Progress.h"

#include <utility>

#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr std::chrono::milliseconds kBetween{100};

}  // namespace

Progress::Progress(std::string text, std::int64_t whole) : text_(std::move(text)), whole_(whole) {}

Progress::~Progress() {
  if (shown_) gRuntime->HideProgress();
}

void Progress::Step() {
  ++done_;
  const Clock::time_point now = Clock::now();
  if (gRuntime == nullptr || now - told_ < kBetween) return;
  told_ = now;
  shown_ = true;
  gRuntime->ShowProgress(text_, done_, whole_);
}

}  // namespace quillon
