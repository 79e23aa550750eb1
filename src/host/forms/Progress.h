#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace quillon {

/// Tells the user how far a long job has come, and lets the windows repaint, ten times a second at most. What
/// the user does meanwhile waits.
class Progress {
 public:
  /// `whole` is 0 where nobody knows how much there is to do.
  Progress(std::string text, std::int64_t whole);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  /// One more is done.
  void Step();

 private:
  using Clock = std::chrono::steady_clock;

  std::string text_;
  std::int64_t whole_;
  std::int64_t done_ = 0;
  Clock::time_point told_ = Clock::now();
  bool shown_ = false;
};

}  // namespace quillon
