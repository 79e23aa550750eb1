#include "bench/LoopWatch.h"

#include <algorithm>
#include <chrono>

namespace quillon::bench {

LoopWatch::LoopWatch() : watcher_([this] { Watch(); }) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { beat_ = Now(); });
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.start(1);
}

LoopWatch::~LoopWatch() {
  ends_ = true;
  watcher_.join();
}

std::int64_t LoopWatch::Now() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

void LoopWatch::Begin(const std::string& act) {
  const std::lock_guard lock(guard_);
  beat_ = Now();
  acts_.push_back({act});
}

std::vector<LoopWatch::Act> LoopWatch::Acts() const {
  const std::lock_guard lock(guard_);
  return acts_;
}

void LoopWatch::Watch() {
  while (!ends_) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    const std::lock_guard lock(guard_);
    const double still = static_cast<double>(Now() - beat_) / 1000;
    if (!acts_.empty()) acts_.back().Longest = std::max(acts_.back().Longest, still);
  }
}

}  // namespace quillon::bench
