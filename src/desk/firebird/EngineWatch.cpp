#include "desk/firebird/EngineWatch.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <ctime>
#include <firebird/Interface.h>
#include <ibase.h>
#include <mutex>
#include <pthread.h>
#include <thread>
#include <unistd.h>

#include "desk/firebird/EngineProbe.h"
#include "desk/firebird/FirebirdStatus.h"

namespace quillon {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kEndedByWatch = 2;
constexpr std::int64_t kAtWork = 5'000'000;  // nanoseconds of a second in which a thread has not stood still

thread_local int depth = 0;

/// What the watch knows of the call at hand. It is never destroyed, because it watches the process's end too.
struct Watched {
  std::mutex Guard;
  std::function<bool()> Ask;
  bool IsStarted = false;
  bool IsLeaving = false;
  int Status = 0;
  std::uint64_t Serial = 0;  ///< counts the calls; 0 before the first
  bool IsCalling = false;
  FirebirdAddress Address;
  Firebird::IAttachment* Attachment = nullptr;
  clockid_t Processor = 0;
};

Watched& State() {
  static auto* const state = new Watched;
  return *state;
}

std::int64_t Worked(clockid_t processor) {
  timespec spent{};
  if (clock_gettime(processor, &spent) != 0) return 0;
  return std::int64_t{spent.tv_sec} * 1'000'000'000 + spent.tv_nsec;
}

void End() {
  std::fprintf(stderr, "%s\n", EngineWatch::kStuck);
  _exit(kEndedByWatch);
}

void LookInto(Watched& state, std::uint64_t serial) {
  FirebirdAddress address;
  std::function<bool()> ask;
  {
    const std::lock_guard lock(state.Guard);
    address = state.Address;
    ask = state.Ask;
  }
  const EngineProbe::Answer answer = EngineProbe::Ask(address);
  if (answer == EngineProbe::Answer::kYes || (answer == EngineProbe::Answer::kError && !address.IsServer()))
    return;
  {
    const std::lock_guard lock(state.Guard);
    if (!state.IsCalling || state.Serial != serial) return;
    if (state.Address.IsServer()) {
      if (state.Attachment == nullptr) return;
      Firebird::CheckStatusWrapper status = SilentStatus();
      state.Attachment->cancelOperation(&status, fb_cancel_abort);
      return;
    }
  }
  if (!ask || ask()) End();
}

void Watch() {
  Watched& state = State();
  std::uint64_t seen = 0;
  std::int64_t worked = 0;
  Clock::time_point still = Clock::now();
  for (;;) {
    std::this_thread::sleep_for(std::chrono::seconds(1));
    bool isLong = false;
    {
      const std::lock_guard lock(state.Guard);
      const std::int64_t now = state.IsCalling ? Worked(state.Processor) : 0;
      if (!state.IsCalling || state.Serial != seen || now - worked > kAtWork) still = Clock::now();
      seen = state.Serial;
      worked = now;
      isLong = Clock::now() - still > std::chrono::seconds(EngineWatch::kSeconds);
      if (isLong && state.IsLeaving) _exit(state.Status);
    }
    if (!isLong) continue;
    LookInto(state, seen);
    still = Clock::now();
  }
}

void Begin(Watched& state) {
  ++state.Serial;
  state.IsCalling = true;
  pthread_getcpuclockid(pthread_self(), &state.Processor);
  if (state.IsStarted) return;
  state.IsStarted = true;
  std::thread(Watch).detach();
}

}  // namespace

EngineWatch::Call::Call(const FirebirdAddress& address, Firebird::IAttachment* attachment)
    : isOuter_(depth++ == 0) {
  if (!isOuter_) return;
  Watched& state = State();
  const std::lock_guard lock(state.Guard);
  state.Address = address;
  state.Attachment = attachment;
  Begin(state);
}

EngineWatch::Call::~Call() {
  --depth;
  if (!isOuter_) return;
  Watched& state = State();
  const std::lock_guard lock(state.Guard);
  state.IsCalling = state.IsLeaving;
}

void EngineWatch::SetAsk(std::function<bool()> ask) {
  Watched& state = State();
  const std::lock_guard lock(state.Guard);
  state.Ask = std::move(ask);
}

void EngineWatch::Leave(int status) {
  Watched& state = State();
  const std::lock_guard lock(state.Guard);
  state.IsLeaving = true;
  state.Status = status;
  Begin(state);
}

}  // namespace quillon
