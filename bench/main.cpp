#include <QGuiApplication>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "bench/BenchFirm.h"
#include "bench/Memory.h"
#include "bench/RatioTable.h"
#include "bench/Stand.h"
#include "tests/support/TempFolder.h"

namespace {

using namespace quillon;
using namespace quillon::bench;

constexpr const char* kWalk = "--walk=";

/// The firms, and the stand on the one that is measured now.
class Grounds {
 public:
  Grounds(const TempFolder& folder, RatioTable& table) : folder_(folder), table_(table) {}

  std::filesystem::path Firm(int entries) {
    std::filesystem::path folder = folder_.Path() / std::to_string(entries);
    if (!std::filesystem::exists(folder)) MakeBenchFirm(folder, entries);
    return folder;
  }

  /// The stand with the case recorded.
  Stand& StandOf(int entries, const Case& measured) {
    if (entries_ != entries) {
      stand_.reset();
      stand_ = std::make_unique<Stand>(Firm(entries));
      entries_ = entries;
      case_ = nullptr;
    }
    if (case_ != &measured) {
      stand_->Record(measured);
      case_ = &measured;
      table_.AddCounts(measured.Title, entries, stand_->DeskCounts(), stand_->FloorCounts());
    }
    return *stand_;
  }

 private:
  const TempFolder& folder_;
  RatioTable& table_;
  std::unique_ptr<Stand> stand_;
  int entries_ = 0;
  const Case* case_ = nullptr;
};

/// Enough for a tenth of the acts to be undisturbed, few where one act takes a second.
int Iterations(int entries, const Case& measured) {
  if (measured.Acts > 1) return 2 * measured.Acts;
  return entries >= 100000 ? 5 : 20;
}

void RunAct(Stand& stand, const Case& measured, const char* who) {
  if (who == kDesk) {
    measured.Act(stand.Work);
  } else if (who == kFloorLean) {
    stand.RunLean(measured);
  } else {
    stand.RunFloor(who == kFloorPrepared);
  }
}

void Register(Grounds& grounds, RatioTable& table, int entries, const Case& measured) {
  for (const char* who : {kDesk, kFloorByText, kFloorPrepared, kFloorLean}) {
    if (who == kFloorLean && measured.Lean.empty()) continue;
    const std::string name = RatioTable::NameOf(measured.Title, entries, who);
    const auto run = [&grounds, &table, &measured, entries, who, name](benchmark::State& state) {
      Stand& stand = grounds.StandOf(entries, measured);
      for ([[maybe_unused]] auto iteration : state) {
        if (who == kDesk) measured.Ready(stand.Work);
        const Times start = Times::Now();
        RunAct(stand, measured, who);
        const Times passed = Times::Now() - start;
        if (who == kDesk) measured.Undo(stand.Work);
        state.SetIterationTime(passed.Wall);
        table.AddTime(name, passed);
      }
    };
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(Iterations(entries, measured));
  }
}

/// All that is measured once on a firm, by a desk that has a process for itself.
void Walk(const std::filesystem::path& firm) {
  DeskWork work(firm);
  for (const Case& measured : Cases()) {
    measured.Ready(work);
    measured.Act(work);
  }
  std::printf("%.0f MB at most in a process that did each once, on %s entries\n", PeakMegabytes(),
              firm.filename().c_str());
}

int Measure(const TempFolder& folder, bool quick, const char* program) {
  RatioTable table;
  Grounds grounds(folder, table);
  const std::vector<int> sizes = quick ? std::vector<int>{1000} : std::vector<int>{1000, 10000, 100000};
  for (const int entries : sizes) {
    for (const Case& measured : Cases()) Register(grounds, table, entries, measured);
  }
  benchmark::RunSpecifiedBenchmarks();
  table.Print();
  std::fputs("\n", stdout);
  std::fflush(stdout);
  const std::string walk =
      "'" + std::string(program) + "' '" + kWalk + grounds.Firm(sizes.back()).string() + "'";
  return std::system(walk.c_str()) == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** words) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const TempFolder folder;
  setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 0);
  const QGuiApplication application(count, words);
  benchmark::Initialize(&count, words);
  bool quick = false;
  try {
    for (int i = 1; i < count; ++i) {
      if (std::strncmp(words[i], kWalk, std::strlen(kWalk)) == 0) {
        Walk(words[i] + std::strlen(kWalk));
        return 0;
      }
      quick = quick || std::strcmp(words[i], "--quick") == 0;
    }
    return Measure(folder, quick, words[0]);
  } catch (const Firebird::FbException& error) {
    char text[1024];
    Firebird::fb_get_master_interface()->getUtilInterface()->formatStatus(text, sizeof text,
                                                                          error.getStatus());
    std::fprintf(stderr, "quillon_bench: the floor failed: %s\n", text);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quillon_bench: %s\n", error.what());
  }
  return 1;
}
