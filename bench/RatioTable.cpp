#include "bench/RatioTable.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

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

Times Times::Now() {
  timespec processor{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &processor);
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now().time_since_epoch();
  return {wall.count(),
          static_cast<double>(processor.tv_sec) + static_cast<double>(processor.tv_nsec) * 1e-9};
}

std::string RatioTable::NameOf(const char* title, int entries, const char* who) {
  return std::string(title) + "/" + std::to_string(entries) + "/" + who;
}

void RatioTable::AddCounts(const char* title, int entries, const Counts& desk, const Counts& floor) {
  lines_.push_back({title, entries, desk, floor});
}

double RatioTable::Fast(const Acts& acts, const Line& line, const char* who) {
  const auto found = acts.find(NameOf(line.Title, line.Entries, who));
  if (found == acts.end()) return 0;
  std::vector<double> times = found->second;
  const auto tenth = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 10);
  std::nth_element(times.begin(), tenth, times.end());
  return *tenth * 1000;
}

void RatioTable::PrintTimes(const char* heading, const Acts& acts) const {
  std::printf("\n%-30s | %7s | %9s | %9s %6s | %9s %6s | %9s %6s\n", heading, "entries", kDesk, "by text",
              "ratio", "prepared", "ratio", "lean", "ratio");
  for (const Line& line : lines_) {
    const double desk = Fast(acts, line, kDesk);
    const double text = Fast(acts, line, kFloorByText);
    const double prepared = Fast(acts, line, kFloorPrepared);
    const double lean = Fast(acts, line, kFloorLean);
    std::printf("%-30s | %7d | %9.3f | %9.3f %6s | %9.3f %6s | %9.3f %6s\n", line.Title, line.Entries, desk,
                text, Ratio(desk, text).c_str(), prepared, Ratio(desk, prepared).c_str(), lean,
                Ratio(desk, lean).c_str());
  }
}

void RatioTable::PrintCounts() const {
  std::printf("\n%-30s | %7s | %17s | %17s | %17s\n", "counted for an act: desk, floor", "entries",
              "page writes", "prepared", "rows read");
  for (const Line& line : lines_) {
    std::printf("%-30s | %7d | %8.2f %8.2f | %8.2f %8.2f | %8.0f %8.0f\n", line.Title, line.Entries,
                line.Desk.PageWrites, line.Floor.PageWrites, line.Desk.Prepared, line.Floor.Prepared,
                line.Desk.RowsRead, line.Floor.RowsRead);
  }
}

void RatioTable::Print() const {
  PrintTimes("ms for an act, on the wall", wall_);
  PrintTimes("ms for an act, of the processor", processor_);
  PrintCounts();
}

}  // namespace quillon::bench
