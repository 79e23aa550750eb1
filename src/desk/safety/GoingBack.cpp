#include "desk/safety/GoingBack.h"

#include <chrono>
#include <map>
#include <thread>

#include "desk/firebird/BooksDigest.h"
#include "desk/firebird/EngineThread.h"
#include "desk/firebird/EngineTools.h"
#include "desk/firm/BulkTurn.h"
#include "desk/firm/YearPlaces.h"
#include "host/data/TransactionScope.h"
#include "host/services/FinYear.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

/// A name that no database beside the year's has yet. On a server the engine says so itself.
FirebirdAddress FreePlace(const FirebirdAddress& year, const BookCopy& copy) {
  const std::string stem = std::to_string(copy.StartYear) + "-run" + std::to_string(copy.Run);
  FirebirdAddress place;
  for (int number = 1;; ++number) {
    place = YearPlaces::Beside(year, stem + (number == 1 ? "" : "-" + std::to_string(number)) + ".fdb");
    if (place.Database == year.Database) continue;
    if (year.IsServer() || !fs::exists(place.Database)) return place;
  }
}

bool OthersAreIn(const FirebirdAddress& year) {
  return FirebirdLink::Open(year, "")->RowExists(
      "select 1 from mon$attachments where mon$system_flag=0 and mon$attachment_id<>current_connection");
}

}  // namespace

GoingBack::GoingBack(Firm& firm, int run, std::string user)
    : firm_(firm), copies_(firm), journal_(*firm.Common()), entry_(journal_.Of(run)), user_(std::move(user)) {
  for (const BookCopy& copy : copies_.Of(run)) {
    if (copy.IsGone) throw HostError("The copy of No. " + std::to_string(run) + " is gone");
    years_.push_back({copy, firm.PlaceOfYear(copy.StartYear).Database, {}});
  }
  if (years_.empty()) throw HostError("No. " + std::to_string(run) + " has no copy");
}

std::vector<std::string> GoingBack::Since() const {
  std::vector<std::string> lines;
  for (const Year& year : years_) {
    // A run that was broken off has no state of its end: then all that came after the copy is told.
    const fs::path after = copies_.After(year.Copy.Run, year.Copy.StartYear);
    const BooksDigest then =
        BooksDigest::Read(fs::exists(after) ? after : copies_.Before(year.Copy.Run, year.Copy.StartYear));
    std::map<std::string, int> counts;
    for (const RowChange& change : then.ChangesTo(BooksDigest::Of(year.Now))) {
      const char* what = change.What == RowChange::Kind::kAdded  ? "added to "
                         : change.What == RowChange::Kind::kGone ? "deleted from "
                                                                 : "changed in ";
      ++counts[what + change.Table];
    }
    for (const auto& count : counts) {
      lines.push_back(YearName(year.Copy.StartYear) + ": " + std::to_string(count.second) +
                      (count.second == 1 ? " row " : " rows ") + count.first);
    }
  }
  return lines;
}

void GoingBack::Do(int patience) {
  const BulkTurn turn(*firm_.Common(), user_, "Going back to before " + entry_.Words(), true);
  copies_.RemoveLeft();
  try {
    RestoreAll();
    Empty(patience);
    Switch(NoteWhatIsLeft());
  } catch (const HostError&) {
    LetIn();
    DropRestored();
    throw;
  }
}

void GoingBack::RestoreAll() {
  for (Year& year : years_) {
    year.Then = FreePlace(year.Now, year.Copy);
    copies_.Restore(year.Copy, year.Then);
  }
}

void GoingBack::DropRestored() {
  for (const Year& year : years_) {
    if (!year.Then.Database.empty()) FirebirdAttachment::Delete(year.Then);
  }
}

/// Whoever is in a year after that is thrown out, so that nothing is acknowledged that would be lost.
void GoingBack::Empty(int patience) const {
  constexpr std::chrono::milliseconds kPause(500);
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(patience);
  for (const Year& year : years_) {
    while (std::chrono::steady_clock::now() < end && OthersAreIn(year.Now)) {
      EngineThread::Do([kPause] { std::this_thread::sleep_for(kPause); });
    }
  }
  for (const Year& year : years_) EngineTools::ShutDown(year.Now);
}

void GoingBack::LetIn() const {
  for (const Year& year : years_) {
    try {
      EngineTools::BringOnline(year.Now);
    } catch (const HostError&) {
      // It was not shut down yet.
    }
  }
}

/// What is left behind has a line of its own in the journal. What came after it begins with the rows of the
/// copy.
int GoingBack::NoteWhatIsLeft() {
  BulkEntry entry;
  entry.User = user_;
  entry.Screen = "Going back";
  entry.AccountName = "No. " + std::to_string(entry_.Run);
  const int left = journal_.Begin(entry);
  for (const Year& year : years_) {
    BooksDigest::Of(year.Then).Write(copies_.After(left, year.Copy.StartYear));
  }
  return left;
}

void GoingBack::Switch(int left) {
  TransactionScope work(*firm_.Common());
  for (const Year& year : years_) {
    const bool isFile = !year.Now.IsServer();
    const std::int64_t size = isFile ? static_cast<std::int64_t>(fs::file_size(year.Now.Database)) : 0;
    copies_.Record({left, year.Copy.StartYear, YearPlaces::NameOf(year.Now), size, TimeNow(), false});
    YearPlaces::Set(*firm_.Common(), year.Copy.StartYear, YearPlaces::NameOf(year.Then));
  }
  journal_.NoteGoneBack(entry_.Run);
  journal_.End(left, BulkJournal::kDone, "", "");
  work.Commit();
}

}  // namespace quillon
