#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "bench/BenchFirm.h"
#include "bench/BulkWork.h"
#include "bench/RawClient.h"
#include "desk/firebird/EngineTools.h"
#include "desk/firm/Firm.h"
#include "desk/safety/BookCopies.h"
#include "tests/support/TempFolder.h"

namespace {

using namespace quillon;
using namespace quillon::bench;

/// The first tenth of the bank's entries, which lie evenly over the year.
const Date kFirstTenth = Date::Of(2024, 5, 6);

/// Opened once, its databases wait for the disk as they do in work; so does a copy of it.
void MakeFirms(const std::filesystem::path& firm, const std::filesystem::path& copy, int entries) {
  MakeBenchFirm(firm, entries);
  Firm::Open(firm)->OpenYear(kYear);
  std::filesystem::copy(firm, copy, std::filesystem::copy_options::recursive);
}

void Tell(const char* what, const BulkRun& desk, double floor) {
  std::printf("%-28s | %10zu | %8.3f | %8.3f | %5.2f\n", what, desk.Sent.size(), desk.Seconds, floor,
              desk.Seconds / floor);
}

/// The desk on one firm; what it sent then goes straight to a copy of it, committed as the desk commits.
void Measure(const std::filesystem::path& firm, const std::filesystem::path& copy, int pairs) {
  BulkWork work(firm);
  RawClient floor((copy / (std::to_string(kYear) + ".fdb")).string());
  const auto send = [&floor](const BulkRun& run) {
    for (const std::string& sql : run.Sent) floor.Run(sql);
  };
  std::printf("%-28s | %10s | %8s | %8s | %5s\n", "seconds", "statements", "desk", "floor", "ratio");
  const BulkRun transfer = work.Transfer(kFirstTenth, kFirstParty + kParties - 1);
  Tell("Transfer of a tenth", transfer, TimeOf([&] { send(transfer); }));
  const BulkRun merge = work.Merge(pairs);
  Tell("Merge of pairs of parties", merge, TimeOf([&] {
         floor.Begin();
         send(merge);
         floor.Commit();
       }));
}

/// What the net does before bulk work, beside the engine's own copy and restore of the same year.
void MeasureCopies(const std::filesystem::path& folder) {
  const std::unique_ptr<Firm> firm = Firm::Open(folder);
  const FirebirdAddress year = firm->PlaceOfYear(kYear).Database;
  const std::filesystem::path copy = folder / "bench.fbk";
  const FirebirdAddress restored{(folder / "bench.fdb").string(), "", "", false};
  firm->LetEngineName(restored);
  const double floor = TimeOf([&] {
    EngineTools::Copy(year, copy);
    EngineTools::Restore(copy, restored);
  });
  std::filesystem::remove(restored.Database);
  BookCopies copies(*firm);
  const double made = TimeOf([&] { copies.Make(1, kYear); });
  const double back = TimeOf([&] { copies.Restore(copies.Of(1).front(), restored); });
  const double restore = TimeOf([&] {
    std::filesystem::remove(restored.Database);
    EngineTools::Restore(copy, restored);
  });
  std::printf("%-28s | %10s | %8.3f | %8.3f | %5.2f\n", "Copy with its proof", "", made, floor, made / floor);
  std::printf("%-28s | %10s | %8.3f | %8.3f | %5.2f\n", "Restore with its proof", "", back, restore,
              back / restore);
}

}  // namespace

int main(int count, char** words) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const TempFolder folder;
  setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 0);
  const QGuiApplication application(count, words);
  const bool quick = count > 1 && std::strcmp(words[1], "--quick") == 0;
  try {
    MakeFirms(folder.Path() / "firm", folder.Path() / "copy", quick ? 1000 : 100000);
    Measure(folder.Path() / "firm", folder.Path() / "copy", quick ? 10 : 100);
    MeasureCopies(folder.Path() / "firm");
    return 0;
  } catch (const Firebird::FbException&) {
    std::fputs("quillon_bulk_bench: the floor failed\n", stderr);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quillon_bulk_bench: %s\n", error.what());
  }
  return 1;
}
