#pragma once

#include <QTimer>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace quillon::bench {

/// Watches from a thread of its own for how long the event loop of the main thread stands still. The loop
/// beats by a timer; what it does in between, a key press with all its work and the painting after it, delays
/// the next beat.
class LoopWatch {
 public:
  LoopWatch();
  LoopWatch(const LoopWatch&) = delete;
  LoopWatch& operator=(const LoopWatch&) = delete;
  ~LoopWatch();

  /// From now on the time without a beat counts for this act; in the main thread.
  void Begin(const std::string& act);

  struct Act {
    std::string Name;
    double Longest = 0;  ///< milliseconds
  };
  std::vector<Act> Acts() const;

 private:
  static std::int64_t Now();
  void Watch();

  QTimer timer_;
  std::atomic<std::int64_t> beat_{Now()};
  std::atomic<bool> ends_{false};
  mutable std::mutex guard_;
  std::vector<Act> acts_;
  std::thread watcher_;
};

}  // namespace quillon::bench
