// Linked into every program of the sanitizer build: looks for leaks while the database engine's threads
// sleep. The look that is made by itself comes when the engine is ending them, and breaks off on a thread
// that goes meanwhile.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sanitizer/common_interface_defs.h>
#include <sanitizer/lsan_interface.h>
#include <string>
#include <thread>
#include <unistd.h>

namespace quillon {
namespace {

bool IsAsleep(const std::filesystem::path& task) {
  std::ifstream in(task / "stat");
  const std::string stat{std::istreambuf_iterator<char>(in), {}};
  // The state follows the name in brackets, which may hold blanks and brackets itself.
  const std::size_t name = stat.rfind(')');
  return name != std::string::npos && stat.compare(name, 3, ") S") == 0;
}

bool TheOthersSleep() {
  const std::string self = std::to_string(gettid());
  std::error_code gone;
  for (const auto& task : std::filesystem::directory_iterator("/proc/self/task", gone)) {
    if (task.path().filename() != self && !IsAsleep(task.path())) return false;
  }
  return !gone;
}

int exitStatus = 0;

/// Where a thread goes in the middle of the look, the look breaks off: that tells nothing of the program.
void LookBrokeOff() { _exit(exitStatus); }

void LookForLeaks(int status, void* /*nothing*/) {
  constexpr int kLooks = 1000;
  for (int looks = 0, asleep = 0; looks < kLooks && asleep < 3; ++looks) {
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    asleep = TheOthersSleep() ? asleep + 1 : 0;
  }
  exitStatus = status;
  __sanitizer_set_death_callback(LookBrokeOff);
  if (__lsan_do_recoverable_leak_check() != 0) _exit(status == 0 ? 1 : status);
  __sanitizer_set_death_callback(nullptr);
}

[[gnu::constructor]] void LookAtExit() { on_exit(LookForLeaks, nullptr); }

}  // namespace
}  // namespace quillon

extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() { return "leak_check_at_exit=0"; }
