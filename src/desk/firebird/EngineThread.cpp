#include "desk/firebird/EngineThread.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <firebird/Interface.h>
#include <memory>
#include <mutex>
#include <thread>

#include "desk/firebird/FirebirdStatus.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

using Clock = std::chrono::steady_clock;

/// Most statements take less; waking a thread would take as long as they do.
constexpr std::chrono::microseconds kSpin(50);
constexpr std::chrono::milliseconds kMoment(25);
constexpr std::chrono::milliseconds kGlance(4);

template <class Condition>
bool SpinUntil(const Condition& condition) {
  for (const Clock::time_point end = Clock::now() + kSpin; Clock::now() < end;) {
    if (condition()) return true;
  }
  return condition();
}

class Worker {
 public:
  explicit Worker(std::function<bool(bool)> wait) : wait_(std::move(wait)), thread_([this] { Work(); }) {}
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  ~Worker() {
    {
      const std::lock_guard lock(guard_);
      isEnding_ = true;
    }
    given_.notify_one();
    thread_.join();
  }

  bool IsFor(std::thread::id thread) const { return thread == owner_; }

  void Do(const std::function<void()>& work, Firebird::IAttachment* mayBreak) {
    if (work_ != nullptr) throw HostError("The books are being read just now");
    failure_ = nullptr;
    {
      const std::lock_guard lock(guard_);
      work_ = &work;
    }
    given_.notify_one();
    if (!SpinUntil([this] { return work_ == nullptr; })) WaitFor(mayBreak);
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  void WaitFor(Firebird::IAttachment* mayBreak) {
    if (IsDoneIn(kMoment)) return;
    bool isBroken = false;
    do {
      if (!wait_(mayBreak != nullptr && !isBroken) || isBroken) continue;
      isBroken = true;
      Cancel(*mayBreak, fb_cancel_raise);
    } while (!IsDoneIn(kGlance));
    if (!isBroken) return;
    // What was broken off too late would otherwise break the next statement.
    Cancel(*mayBreak, fb_cancel_disable);
    Cancel(*mayBreak, fb_cancel_enable);
  }

  bool IsDoneIn(std::chrono::milliseconds time) {
    std::unique_lock lock(guard_);
    return done_.wait_for(lock, time, [this] { return work_ == nullptr; });
  }

  static void Cancel(Firebird::IAttachment& attachment, int how) {
    Firebird::CheckStatusWrapper status = SilentStatus();
    attachment.cancelOperation(&status, how);
  }

  void Work() {
    for (;;) {
      if (!SpinUntil([this] { return work_ != nullptr; })) {
        std::unique_lock lock(guard_);
        given_.wait(lock, [this] { return work_ != nullptr || isEnding_; });
        if (work_ == nullptr) return;
      }
      try {
        (*work_.load())();
      } catch (...) {
        failure_ = std::current_exception();
      }
      {
        const std::lock_guard lock(guard_);
        work_ = nullptr;
      }
      done_.notify_one();
    }
  }

  std::function<bool(bool)> wait_;
  std::mutex guard_;
  std::condition_variable given_;
  std::condition_variable done_;
  std::atomic<const std::function<void()>*> work_ = nullptr;
  std::exception_ptr failure_;
  const std::thread::id owner_ = std::this_thread::get_id();
  bool isEnding_ = false;
  std::thread thread_;
};

std::unique_ptr<Worker> worker;

}  // namespace

void EngineThread::Start(std::function<bool(bool mayBreak)> wait) {
  worker = std::make_unique<Worker>(std::move(wait));
}

void EngineThread::Stop() { worker.reset(); }

void EngineThread::Do(const std::function<void()>& work, Firebird::IAttachment* mayBreak) {
  if (worker && worker->IsFor(std::this_thread::get_id())) {
    worker->Do(work, mayBreak);
  } else {
    work();
  }
}

}  // namespace quillon
