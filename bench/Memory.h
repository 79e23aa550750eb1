#pragma once

#include <fstream>
#include <string>

namespace quillon::bench {

/// The most memory that this process has held, in megabytes.
inline double PeakMegabytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes / 1024;
  }
  return 0;
}

}  // namespace quillon::bench
