#include "bench/RatioTable.h"

#include <algorithm>
#include <cstdio>

namespace quillon::bench {

namespace {

/// A ratio, or a dash where there is nothing to divide by.
std::string Ratio(double desk, double floor) {
  if (floor <= 0) return "-";
  char text[32];
  std::snprintf(text, sizeof text, "%.2f", desk / floor);
  return text;
}

}  // namespace

std::string RatioTable::NameOf(const char* title, int entries, const char* who) {
  return std::string(title) + "/" + std::to_string(entries) + "/" + who;
}

void RatioTable::AddCounts(const char* title, int entries, const Counts& desk, const Counts& floor) {
  lines_.push_back({title, entries, desk, floor});
}

double RatioTable::Fast(const Line& line, const char* who) const {
  const auto found = times_.find(NameOf(line.Title, line.Entries, who));
  if (found == times_.end()) return 0;
  std::vector<double> times = found->second;
  const auto tenth = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 10);
  std::nth_element(times.begin(), tenth, times.end());
  return *tenth * 1000;
}

void RatioTable::Print() const {
  std::printf("\n%-32s %8s %10s | %10s %6s | %10s %6s\n", "milliseconds for one act", "entries", "desk",
              "by text", "ratio", "prepared", "ratio");
  for (const Line& line : lines_) {
    const double desk = Fast(line, kDesk);
    const double text = Fast(line, kFloorByText);
    const double prepared = Fast(line, kFloorPrepared);
    std::printf("%-32s  %8d %10.3f | %10.3f %6s | %10.3f %6s\n", line.Title, line.Entries, desk, text,
                Ratio(desk, text).c_str(), prepared, Ratio(desk, prepared).c_str());
  }
  std::printf("\n%-32s %8s | %19s | %19s | %19s\n", "counted for one act, desk and floor", "entries",
              "page writes", "prepared", "rows read");
  for (const Line& line : lines_) {
    std::printf("%-32s     %8d | %9.2f %9.2f | %9.2f %9.2f | %9.0f %9.0f\n", line.Title, line.Entries,
                line.Desk.PageWrites, line.Floor.PageWrites, line.Desk.Prepared, line.Floor.Prepared,
                line.Desk.RowsRead, line.Floor.RowsRead);
  }
}

}  // namespace quillon::bench
