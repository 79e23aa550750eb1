#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

#include "bench/Stand.h"

namespace quillon::bench {

/// Shows the runs as they come, keeps the fastest of each, and sets the desk beside the floor at the end.
class RatioTable : public benchmark::ConsoleReporter {
 public:
  /// The name under which a run is registered.
  static std::string NameOf(const char* title, int entries, const char* who);

  void ReportRuns(const std::vector<Run>& runs) override;
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

  /// Milliseconds; 0 when it was not run.
  double Fastest(const Line& line, const char* who) const;

  std::vector<Line> lines_;
  std::map<std::string, double> fastest_;
};

inline constexpr const char* kDesk = "desk";
inline constexpr const char* kFloorByText = "floor by text";
inline constexpr const char* kFloorPrepared = "floor prepared";

}  // namespace quillon::bench
