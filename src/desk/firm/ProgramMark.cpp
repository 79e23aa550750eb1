#include "desk/firm/ProgramMark.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <unistd.h>
#include <vector>

#include "host/values/Text.h"

namespace quillon {

namespace {

std::string Boot() {
  std::string boot;
  std::getline(std::ifstream("/proc/sys/kernel/random/boot_id"), boot);
  return boot;
}

/// When the process began, in the machine's own count; empty for one that is not there or has ended. A number
/// alone is not enough: another process may have it by now.
std::string BeginOf(const std::string& process) {
  std::string line;
  std::getline(std::ifstream("/proc/" + process + "/stat"), line);
  const std::size_t name = line.rfind(')');
  if (name == std::string::npos) return {};
  std::istringstream rest(line.substr(name + 1));
  const std::vector<std::string> fields{std::istream_iterator<std::string>(rest), {}};
  constexpr std::size_t kState = 0;
  constexpr std::size_t kBegin = 19;
  if (fields.size() <= kBegin || fields[kState] == "Z" || fields[kState] == "X") return {};
  return fields[kBegin];
}

}  // namespace

std::string OwnProgramMark() {
  const std::string process = std::to_string(getpid());
  return Boot() + " " + process + " " + BeginOf(process);
}

bool IsAtWork(const std::string& mark) {
  const std::vector<std::string> parts = text::Split(mark, " ");
  if (parts.size() != 3 || parts[0] != Boot() || parts[2].empty()) return false;
  const bool isProcess =
      std::all_of(parts[1].begin(), parts[1].end(), [](char c) { return c >= '0' && c <= '9'; });
  return isProcess && BeginOf(parts[1]) == parts[2];
}

}  // namespace quillon
