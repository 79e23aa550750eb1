#include "host/forms/Progress.h"

#include <utility>

#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr std::chrono::milliseconds kBetween{60};

/// More rows than any screen has.
constexpr std::int64_t kScreenful = 150;

}  // namespace

Progress::Progress(std::string text, std::int64_t whole) : text_(std::move(text)), whole_(whole) {}

Progress::Progress(std::string text, GridModel& filled) : Progress(std::move(text), 0) { filled_ = &filled; }

Progress::~Progress() {
  if (shown_) gRuntime->HideProgress();
}

void Progress::Step() {
  ++done_;
  const Clock::time_point now = Clock::now();
  const bool isScreenful = filled_ != nullptr && done_ == kScreenful;
  if (gRuntime == nullptr || (now - told_ < kBetween && !isScreenful)) return;
  told_ = now;
  shown_ = true;
  if (filled_ != nullptr) filled_->ShowSoFar();
  gRuntime->ShowProgress(text_, done_, whole_);
}

}  // namespace quillon
