#include "desk/firebird/EngineProbe.h"

#include <array>
#include <csignal>
#include <filesystem>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "desk/firebird/EngineWatch.h"
#include "desk/firebird/FirebirdEngine.h"

namespace quillon {

namespace {

/// Waits for the end of a child; false when it stood still and was killed.
bool HasEnded(pid_t child, int& status) {
  const int watched = static_cast<int>(syscall(SYS_pidfd_open, child, 0));
  pollfd end{watched, POLLIN, 0};
  const bool ended = watched < 0 || poll(&end, 1, EngineWatch::kSeconds * 1000) > 0;
  if (watched >= 0) close(watched);
  if (!ended) kill(child, SIGKILL);
  waitpid(child, &status, 0);
  return ended;
}

}  // namespace

EngineProbe::Answer EngineProbe::Ask(const FirebirdAddress& address) {
  FirebirdEngine::Prepare();
  const std::string program =
      (std::filesystem::read_symlink("/proc/self/exe").parent_path() / "quillon-probe").string();
  std::vector<std::string> surroundings{"ISC_USER=" + address.User, "ISC_PASSWORD=" + address.Password};
  std::vector<char*> environment;
  environment.reserve(surroundings.size());
  for (std::string& line : surroundings) environment.push_back(line.data());
  for (char** line = environ; *line != nullptr; ++line) environment.push_back(*line);
  environment.push_back(nullptr);
  std::string name = program;
  std::string database = address.Database;
  std::array<char*, 3> words{name.data(), database.data(), nullptr};
  pid_t child = 0;
  if (posix_spawn(&child, program.c_str(), nullptr, nullptr, words.data(), environment.data()) != 0)
    return Answer::kYes;
  int status = 0;
  if (!HasEnded(child, status)) return Answer::kNone;
  if (WIFSIGNALED(status)) return Answer::kDied;
  return WEXITSTATUS(status) == 0 ? Answer::kYes : Answer::kError;
}

}  // namespace quillon
