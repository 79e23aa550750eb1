#pragma once

#include <map>
#include <string>
#include <vector>

#include "bench/Stand.h"

namespace quillon::bench {

/// Seconds by the clock on the wall and of the processor.
struct Times {
  double Wall = 0;
  double Processor = 0;

  static Times Now();
  friend Times operator-(const Times& a, const Times& b) {
    return {a.Wall - b.Wall, a.Processor - b.Processor};
  }
};

/// Keeps the time of every act and what was counted, and sets the desk beside the floor at the end.
class RatioTable {
 public:
  /// The name under which a run is registered.
  static std::string NameOf(const char* title, int entries, const char* who);

  /// What one act of the run of this name took.
  void AddTime(const std::string& name, const Times& times) {
    wall_[name].push_back(times.Wall);
    processor_[name].push_back(times.Processor);
  }
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

  using Acts = std::map<std::string, std::vector<double>>;

  /// Milliseconds than which a tenth of the acts was faster: other work of the machine, which only adds,
  /// shows least there. 0 when it was not run.
  static double Fast(const Acts& acts, const Line& line, const char* who);
  void PrintTimes(const char* heading, const Acts& acts) const;
  void PrintCounts() const;

  std::vector<Line> lines_;
  Acts wall_;
  Acts processor_;
};

inline constexpr const char* kDesk = "desk";
inline constexpr const char* kFloorByText = "floor by text";
inline constexpr const char* kFloorPrepared = "floor prepared";
inline constexpr const char* kFloorLean = "floor lean";

}  // namespace quillon::bench
