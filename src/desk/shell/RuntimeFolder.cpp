#include "desk/shell/RuntimeFolder.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

/// A folder that somebody else has laid there, or a link to one, would show him what the desk keeps in it.
bool IsOwn(const std::filesystem::path& folder) {
  struct stat found {};
  return lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == geteuid() &&
         (found.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

}  // namespace

void SetRuntimeFolder() {
  if (std::getenv("XDG_RUNTIME_DIR") != nullptr) return;
  const std::filesystem::path place = std::filesystem::temp_directory_path();
  const std::filesystem::path usual = place / ("quillon-" + std::to_string(geteuid()));
  if (mkdir(usual.c_str(), S_IRWXU) == 0 || IsOwn(usual)) {
    setenv("XDG_RUNTIME_DIR", usual.c_str(), 0);
    return;
  }
  std::string other = usual.string() + "-XXXXXX";
  if (mkdtemp(other.data()) != nullptr) setenv("XDG_RUNTIME_DIR", other.c_str(), 0);
}

}  // namespace quillon
