#include "desk/shell/RuntimeFolder.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace quillon {

void SetRuntimeFolder() {
  if (std::getenv("XDG_RUNTIME_DIR") != nullptr) return;
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("quillon-" + std::to_string(getuid()));
  std::error_code ignored;
  std::filesystem::create_directory(folder, ignored);
  std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
  setenv("XDG_RUNTIME_DIR", folder.c_str(), 0);
}

}  // namespace quillon
