#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string_view>

#include "bench/BenchFirm.h"
#include "bench/LoopWatch.h"
#include "bench/WindowWork.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/tour/Tour.h"
#include "host/values/Errors.h"

namespace {

using namespace quillon;
using namespace quillon::bench;

constexpr const char* kUsage =
    "quillon_window_bench [OPTIONS]     the windows' benchmarks; options of Google Benchmark\n"
    "quillon_window_bench --loop FIRM ACCOUNT   how long the event loop stands still "
    "in each act on the account\n"
    "quillon_window_bench --make FOLDER ENTRIES   makes a firm whose bank has these entries\n";

/// A person's way from the bank's statement to the saved pages. FILE is where they go.
constexpr const char* kWay = R"(
open
press Ctrl+T
see Select Account
type ACCOUNT
press Enter
see frmAccount
press F6
see frmAcReconciliation
press F6
see Reconciliation Statement as on
press F7
press F8
see Preview
press F5
see Save as PDF
type FILE
press Enter
press Esc
)";

/// The firms, and the windows on one of them.
class Grounds {
 public:
  WindowWork& On(int entries) {
    if (work_ && entries_ == entries) return *work_;
    work_.reset();
    const std::filesystem::path firm = folder_.Path() / std::to_string(entries);
    if (!std::filesystem::exists(firm)) MakeBenchFirm(firm, entries);
    work_ = std::make_unique<WindowWork>(firm);
    entries_ = entries;
    return *work_;
  }

 private:
  TempFolder folder_;
  std::unique_ptr<WindowWork> work_;
  int entries_ = 0;
};

void RegisterOpening(Grounds& grounds, int entries) {
  const std::string name = "Reconciliation pressed to painted/" + std::to_string(entries);
  benchmark::RegisterBenchmark(name.c_str(), [&grounds, entries](benchmark::State& state) {
    WindowWork& work = grounds.On(entries);
    for ([[maybe_unused]] auto iteration : state) {
      work.OpenWorkbench();
      state.PauseTiming();
      work.CloseWorkbench();
      state.ResumeTiming();
    }
  })->Unit(benchmark::kMillisecond);
}

void RegisterScrolling(Grounds& grounds, const char* title, void (WindowWork::*scroll)()) {
  constexpr int kEntries = 100000;
  const std::string name = std::string(title) + "/" + std::to_string(kEntries);
  benchmark::RegisterBenchmark(name.c_str(), [&grounds, scroll](benchmark::State& state) {
    WindowWork& work = grounds.On(kEntries);
    work.OpenWorkbench();
    for ([[maybe_unused]] auto iteration : state) (work.*scroll)();
    work.CloseWorkbench();
  })->Unit(benchmark::kMillisecond);
}

int WatchLoop(const QString& firm, const char* account) {
  const QTemporaryDir folder;
  QtRuntime runtime(folder.path().toStdString());
  DeskWindow desk(runtime, "");
  desk.resize(1366, 768);
  desk.show();
  desk.activateWindow();
  std::string way = kWay;
  way.replace(way.find("FILE"), 4, folder.filePath(QStringLiteral("pages.pdf")).toStdString());
  way.replace(way.find("ACCOUNT"), 7, account);
  std::istringstream script(way);
  Tour tour(runtime, desk, {ReadTour(script), firm, folder.path()});
  LoopWatch watch;
  tour.OnAct = [&watch](const TourAct& act) {
    if (act.What == QLatin1String("see")) return;
    watch.Begin(act.What == QLatin1String("type") ? "type" : (act.What + ' ' + act.Rest).toStdString());
  };
  tour.Start();
  const int status = QApplication::exec();
  for (const LoopWatch::Act& act : watch.Acts())
    std::printf("%-16s %6.0f ms\n", act.Name.c_str(), act.Longest);
  return status;
}

int Measure(int count, char** words) {
  Grounds grounds;
  benchmark::Initialize(&count, words);
  if (benchmark::ReportUnrecognizedArguments(count, words)) return 2;
  for (const int entries : {10000, 100000}) RegisterOpening(grounds, entries);
  RegisterScrolling(grounds, "Grid scrolled by a line", &WindowWork::ScrollLine);
  RegisterScrolling(grounds, "Grid scrolled by a page", &WindowWork::ScrollPage);
  RegisterScrolling(grounds, "A column's border dragged", &WindowWork::DragColumn);
  RegisterScrolling(grounds, "The window's border dragged", &WindowWork::DragWindow);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace

int main(int count, char** words) {
  const std::string_view what = count > 1 ? words[1] : "";
  if ((what == "--loop" && count != 4) || (what == "--make" && count != 4)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  const QTemporaryDir own;
  for (const char* place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) setenv(place, qPrintable(own.path()), 1);
  setenv("XDG_RUNTIME_DIR", qPrintable(own.path()), 0);
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("QT_FONT_DPI", "96", 1);
  setenv("QT_LOGGING_RULES", "*.warning=false", 0);  // what a platform without a screen does not support
  QApplication application(count, words);
  QApplication::setQuitOnLastWindowClosed(false);
  Theme::Apply(application);
  try {
    if (what == "--loop") return WatchLoop(QString::fromLocal8Bit(words[2]), words[3]);
    if (what != "--make") return Measure(count, words);
    MakeBenchFirm(words[2], std::atoi(words[3]));
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quillon_window_bench: %s\n", error.what());
    return 1;
  }
}
