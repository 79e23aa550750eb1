#include "desk/safety/BookCopies.h"

#include <regex>
#include <set>

#include "books/SqlText.h"
#include "desk/firebird/BooksDigest.h"
#include "desk/firebird/EngineTools.h"
#include "desk/firm/BulkTurn.h"
#include "desk/firm/SchemaUpgrade.h"
#include "desk/firm/YearPlaces.h"
#include "host/data/CDataSet.h"
#include "host/services/FinYear.h"
#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;
using books::SqlNumber;
using books::SqlString;

namespace {

constexpr int kTries = 3;
constexpr const char* kCopy = ".fbk";
constexpr const char* kScratch = ".scratch.fdb";

/// A file that goes with the block.
class Scratch {
 public:
  explicit Scratch(fs::path path) : path_(std::move(path)) { Remove(); }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  ~Scratch() { Remove(); }

  const fs::path& Path() const { return path_; }
  FirebirdAddress Address() const { return {path_.string(), "", "", false}; }

 private:
  void Remove() const {
    std::error_code ignored;
    fs::remove(path_, ignored);
  }

  fs::path path_;
};

fs::path With(const fs::path& stem, const char* ending) { return stem.string() + ending; }

}  // namespace

BookCopies::BookCopies(Firm& firm)
    : firm_(firm), common_(*firm.Common()), folder_(firm.Folder() / "copies") {}

fs::path BookCopies::Stem(int run, int startYear) const {
  return folder_ / (std::to_string(run) + "-" + std::to_string(startYear));
}

fs::path BookCopies::Before(int run, int startYear) const { return With(Stem(run, startYear), ".before"); }
fs::path BookCopies::After(int run, int startYear) const { return With(Stem(run, startYear), ".after"); }

/// For the copy, and for the database that it is restored to.
void BookCopies::RequireRoom(int startYear) const {
  const FirebirdAddress& year = firm_.PlaceOfYear(startYear).Database;
  if (year.IsServer()) return;
  const std::uintmax_t wanted = 2 * fs::file_size(year.Database);
  if (fs::space(folder_).available < wanted) {
    throw HostError("There is no room for it on the disk: " + std::to_string(wanted >> 20U) +
                    " MB are needed");
  }
}

void BookCopies::Make(int run, int startYear) {
  try {
    fs::create_directories(folder_);
    fs::permissions(folder_, fs::perms::owner_all);
    RequireRoom(startYear);
    const fs::path stem = Stem(run, startYear);
    CopyAndProve(firm_.PlaceOfYear(startYear).Database, stem, YearName(startYear));
    const fs::path file = With(stem, kCopy);
    Record({run, startYear, file.filename().string(), static_cast<std::int64_t>(fs::file_size(file)),
            TimeNow()});
  } catch (const fs::filesystem_error& error) {
    throw HostError(error.what());
  }
}

/// The copy has the rows of one moment; when others wrote meanwhile it must be those of before or after.
void BookCopies::CopyAndProve(const FirebirdAddress& year, const fs::path& stem,
                              const std::string& name) const {
  BooksDigest before = BooksDigest::Of(year);
  for (int left = kTries; left > 0; --left) {
    Scratch copy(With(stem, ".part"));
    EngineTools::Copy(year, copy.Path());
    const Scratch restored(With(stem, kScratch));
    firm_.LetEngineName(restored.Address());
    EngineTools::Restore(copy.Path(), restored.Address());
    const BooksDigest copied = BooksDigest::Of(restored.Address());
    if (copied != before) before = BooksDigest::Of(year);
    if (copied != before) continue;
    before.Write(With(stem, ".before"));
    fs::rename(copy.Path(), With(stem, kCopy));
    return;
  }
  throw HostError("Others change the year " + name + " all the time, so that no copy could be proved");
}

void BookCopies::Record(const BookCopy& copy) {
  common_.Execute(
      "update or insert into BookCopies (RunNo,StartYear,FileName,FileSize,MadeAt,Gone) values (" +
      SqlNumber(copy.Run) + "," + SqlNumber(copy.StartYear) + "," + SqlString(copy.FileName) + "," +
      SqlNumber(copy.Size) + "," + SqlString(copy.MadeAt) + ",0) matching (RunNo,StartYear)");
}

void BookCopies::Restore(const BookCopy& copy, const FirebirdAddress& into) const {
  BooksDigest copied;
  firm_.LetEngineName(into);
  if (fs::path(copy.FileName).extension() == kCopy) {
    copied = BooksDigest::Read(Before(copy.Run, copy.StartYear));
    EngineTools::Restore(folder_ / copy.FileName, into);
  } else {
    const FirebirdAddress left = YearPlaces::Beside(into, copy.FileName);
    firm_.LetEngineName(left);
    const Scratch moved(With(Stem(copy.Run, copy.StartYear), ".part"));
    EngineTools::BringOnline(left);
    copied = BooksDigest::Of(left);
    EngineTools::Copy(left, moved.Path());
    EngineTools::ShutDown(left);
    EngineTools::Restore(moved.Path(), into);
  }
  if (BooksDigest::Of(into) != copied) {
    throw HostError("The copy of the year " + YearName(copy.StartYear) +
                    " has not the rows that were copied");
  }
  FirmFile file;
  file.Common = common_.Address();
  file.Years[copy.StartYear].Database = into;
  SchemaUpgrade(firm_.Folder(), file, AllSchemaSteps()).RaiseAll();
}

std::vector<BookCopy> BookCopies::Read(const std::string& condition) const {
  std::vector<BookCopy> copies;
  CDataSet rows;
  for (rows.Open("select * from BookCopies" + condition + " order by RunNo desc,StartYear", common_);
       !rows.Eof(); rows.MoveNext()) {
    copies.push_back({static_cast<int>(rows.Field("RunNo").ToInteger()),
                      static_cast<int>(rows.Field("StartYear").ToInteger()), rows.Field("FileName").ToText(),
                      rows.Field("FileSize").ToInteger(), rows.Field("MadeAt").ToText(),
                      rows.Field("Gone").ToInteger() != 0});
  }
  return copies;
}

std::vector<BookCopy> BookCopies::Of(int run) const { return Read(" where RunNo=" + SqlNumber(run)); }
std::vector<BookCopy> BookCopies::All() const { return Read(""); }

/// Said before it is done, so that nobody trusts in a file that is gone.
void BookCopies::Drop(int run) {
  const std::vector<BookCopy> copies = Of(run);
  common_.Execute("update BookCopies set Gone=1 where RunNo=" + SqlNumber(run));
  for (const BookCopy& copy : copies) {
    const bool isFile = fs::path(copy.FileName).extension() == kCopy;
    if (isFile) {
      std::error_code ignored;
      fs::remove(folder_ / copy.FileName, ignored);
    } else {
      const FirebirdAddress left =
          YearPlaces::Beside(firm_.PlaceOfYear(copy.StartYear).Database, copy.FileName);
      firm_.LetEngineName(left);
      EngineTools::BringOnline(left);
      FirebirdAttachment::Delete(left);
    }
    std::error_code ignored;
    fs::remove(Before(run, copy.StartYear), ignored);
    fs::remove(After(run, copy.StartYear), ignored);
  }
}

/// In a folder that other firms may share nothing tells whose a database is.
void BookCopies::RemoveLeft() const {
  static const std::regex kHalf(".*\\.(part|scratch\\.fdb)");
  static const std::regex kRestored("[0-9]{4}-run[0-9]+(-[0-9]+)?\\.fdb");
  std::set<std::string> used;
  for (const BookCopy& copy : All()) used.insert(copy.FileName);
  for (const int year : firm_.Years()) used.insert(YearPlaces::NameOf(firm_.PlaceOfYear(year).Database));
  std::error_code ignored;
  for (const auto& [folder, left] : {std::pair(folder_, kHalf), std::pair(firm_.Folder(), kRestored)}) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
      const std::string name = entry.path().filename().string();
      if (std::regex_match(name, left) && !used.contains(name)) fs::remove(entry.path(), ignored);
    }
  }
}

void BookCopies::DropBeyond(const CopyLimits& limits) {
  const std::vector<BookCopy> kept = Read(" where Gone=0");
  std::int64_t bytes = 0;
  int runs = 0;
  int run = 0;
  for (const BookCopy& copy : kept) {
    if (copy.Run != run) ++runs;
    run = copy.Run;
    bytes += copy.Size;
    const bool isBeyond = runs > limits.Runs || bytes >> 20U > limits.Megabytes;
    const bool isLast = run == kept.front().Run;
    if (!isBeyond || isLast) continue;
    const bool hasEnded =
        common_.RowExists("select 1 from BulkRuns where EndedAt is not null and RunNo=" + SqlNumber(run));
    if (hasEnded) Drop(run);
  }
}

}  // namespace quillon
