#pragma once

#include <map>
#include <string>
#include <vector>

#include "bench/Stand.h"

namespace quillon::bench {

/// Keeps the time of every act and what was counted, and sets the desk beside the floor at the end.
class RatioTable {
 public:
  /// The name under which a run is registered.
  static std::string NameOf(const char* title, int entries, const char* who);

  /// Seconds that one act of the run of this name took.
  void AddTime(const std::string& name, double seconds) { times_[name].push_back(seconds); }
  void AddCounts(const char* title, int entries, const Counts& desk, const Counts& floor);

  /// Times in milliseconds and counts, the desk's, the floor's and their ratio, for each case that was run.
  void Print() const;

 private:
  struct Line {
    const char* Title;
    int Entries;
    Counts Desk;
    Counts Floor;
  };

  /// Milliseconds than which a tenth of the acts was faster: other work of the machine, which only adds,
  /// shows least there. 0 when it was not run.
  double Fast(const Line& line, const char* who) const;

  std::vector<Line> lines_;
  std::map<std::string, std::vector<double>> times_;
};

inline constexpr const char* kDesk = "desk";
inline constexpr const char* kFloorByText = "floor by text";
inline constexpr const char* kFloorPrepared = "floor prepared";

}  // namespace quillon::bench
