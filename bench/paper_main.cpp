#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "bench/Memory.h"
#include "bench/PaperWork.h"
#include "desk/firm/Firm.h"
#include "tests/support/TempFolder.h"

namespace {

using namespace quillon;
using namespace quillon::bench;

constexpr int kParties = 10'000;

void Tell(const PaperTimes& times) {
  std::printf("%-36s | %8.3f | %8.3f | %5.2f | %5.0f\n", times.Title.c_str(), times.Desk, times.Floor,
              times.Desk / times.Floor, PeakMegabytes());
}

void MakeFirm(const std::filesystem::path& path) {
  FirmDetails details;
  details.FirmName = "Sharda Trading Co.";
  CreateFirm(path, details, {2024});
  const auto firm = Firm::Open(path);
  PaperWork::AddParties(*firm->OpenYear(2024).Db, kParties);
}

}  // namespace

int main(int count, char** words) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const TempFolder folder;
  setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 0);
  const QGuiApplication application(count, words);
  const int jobs = count > 1 && std::strcmp(words[1], "--quick") == 0 ? 100 : 1000;
  try {
    MakeFirm(folder.Path() / "firm");
    PaperWork work(folder.Path() / "firm", folder.Path());
    std::printf("%-36s | %8s | %8s | %5s | %5s\n", "seconds", "desk", "floor", "ratio", "MB");
    Tell(work.Cheques(jobs));
    Tell(work.Envelopes(jobs));
    Tell(work.Labels());
    Tell(work.Letter());
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quillon_paper_bench: %s\n", error.what());
    return 1;
  }
}
