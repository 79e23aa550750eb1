#include "desk/safety/CopiedFirm.h"

#include <fcntl.h>
#include <fstream>
#include <sys/file.h>
#include <unistd.h>

#include "books/SqlText.h"
#include "desk/firebird/EngineTools.h"
#include "desk/firm/BulkTurn.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

constexpr const char* kMark = "copied.txt";
constexpr const char* kTrial = "trial-";
constexpr const char* kLook = "look-";

/// -1 when another holds it, or there is none.
int LockMark(const fs::path& folder) {
  const int mark = open((folder / kMark).c_str(), O_RDONLY | O_CLOEXEC);
  if (mark >= 0 && flock(mark, LOCK_EX | LOCK_NB) == 0) return mark;
  if (mark >= 0) close(mark);
  return -1;
}

void Remove(const fs::path& folder) {
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

bool IsVisited(const fs::path& folder) {
  if (!fs::exists(folder / kMark)) return false;
  const int mark = LockMark(folder);
  if (mark >= 0) close(mark);
  return mark < 0;
}

}  // namespace

CopiedFirm::CopiedFirm(Firm& firm, int run, Use use)
    : firm_(firm),
      folder_(firm.Folder() / "copies" / ((use == Use::kTrial ? kTrial : kLook) + std::to_string(run))),
      copies_(BookCopies(firm).Of(run)) {
  const std::string which = "No. " + std::to_string(run);
  if (copies_.empty()) throw HostError(which + " has no copy");
  for (const BookCopy& copy : copies_) {
    if (copy.IsGone) throw HostError("The copy of " + which + " is gone");
  }
  if (IsVisited(folder_)) throw HostError("The copy of " + which + " is open already");
  try {
    Make(run, use);
  } catch (const fs::filesystem_error& error) {
    Remove(folder_);
    throw HostError(error.what());
  } catch (...) {
    Remove(folder_);
    throw;
  }
}

FirebirdAddress CopiedFirm::Place(const std::string& name) const {
  FirebirdAddress place{(folder_ / name).string(), "", "", false};
  firm_.LetEngineName(place);
  return place;
}

/// Its name says what it is wherever a firm's name stands, on pages too.
void CopiedFirm::Make(int run, Use use) {
  fs::remove_all(folder_);
  fs::create_directories(folder_);
  FirmFile file;
  file.Name = (use == Use::kTrial ? "TRIAL - " : "COPY of " + SpokenTime(copies_.front().MadeAt) + " - ") +
              firm_.Name();
  for (const BookCopy& copy : copies_) {
    const FirmFile::Year& year = firm_.PlaceOfYear(copy.StartYear);
    const FirebirdAddress place = Place(std::to_string(copy.StartYear) + ".fdb");
    BookCopies(firm_).Restore(copy, place);
    if (use == Use::kLook) EngineTools::MakeReadOnly(place);
    file.Years[copy.StartYear] = {place, year.StartDate, year.EndDate};
  }
  file.Common = Place("common.fdb");
  CopyCommon(file.Common, file.Name);
  std::ofstream(folder_ / kMark) << "Made of the copy of No. " << run << ". It may be deleted.\n";
  file.Write(folder_);
}

void CopiedFirm::CopyCommon(const FirebirdAddress& into, const std::string& name) const {
  const fs::path copy = folder_ / "common.fbk";
  EngineTools::Copy(firm_.Common()->Address(), copy);
  EngineTools::Restore(copy, into);
  fs::remove(copy);
  const auto link = FirebirdLink::Open(into, "");
  for (const char* table : {"BulkTurn", "YearPlaces", "BulkRuns", "BookCopies"}) {
    link->Execute("delete from " + std::string(table));
  }
  link->Execute("update Firm set FirmName=" + books::SqlString(text::Left(name, 80)));
}

void CopiedFirm::RemoveLeft(const Firm& firm) {
  std::error_code none;
  for (const fs::directory_entry& entry : fs::directory_iterator(firm.Folder() / "copies", none)) {
    const std::string name = entry.path().filename().string();
    const bool isOne = name.starts_with(kTrial) || name.starts_with(kLook);
    if (isOne && !IsVisited(entry.path())) Remove(entry.path());
  }
}

CopiedFirm::Visit::Visit(fs::path folder) : folder_(std::move(folder)), mark_(LockMark(folder_)) {
  if (mark_ < 0) throw HostError("The copy is open already");
}

CopiedFirm::Visit::~Visit() {
  Remove(folder_);
  close(mark_);
}

}  // namespace quillon
