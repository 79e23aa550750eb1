#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "host/controls/GridModel.h"

namespace quillon {

/// Tells the user how far a long job has come, and lets the windows repaint, ten times a second at most. What
/// the user does meanwhile waits. Of a grid that is filled the rows so far are shown, the first screenful at
/// once.
class Progress {
 public:
  /// `whole` is 0 where nobody knows how much there is to do.
  Progress(std::string text, std::int64_t whole);
  Progress(std::string text, GridModel& filled);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  /// One more is done.
  void Step();

 private:
  using Clock = std::chrono::steady_clock;

  std::string text_;
  std::int64_t whole_;
  GridModel* filled_ = nullptr;
  std::int64_t done_ = 0;
  Clock::time_point told_ = Clock::now();
  bool shown_ = false;
};

}  // namespace quillon
