#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/TempFolder.h"

namespace quillon {

/// A program of the test's own, a part of the spooler, stands first in the search path while it lives.
class SpoolerPath {
 public:
  SpoolerPath(const TempFolder& folder, const std::string& script, const char* name = "lp")
      : path_(getenv("PATH")) {
    const std::string program = folder.File(name);
    std::ofstream(program) << "#!/bin/sh\n" << script;
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    setenv("PATH", (folder.Path().string() + ":" + path_).c_str(), 1);
  }
  SpoolerPath(const SpoolerPath&) = delete;
  SpoolerPath& operator=(const SpoolerPath&) = delete;
  ~SpoolerPath() { setenv("PATH", path_.c_str(), 1); }

 private:
  std::string path_;
};

}  // namespace quillon
