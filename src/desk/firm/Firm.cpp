#include "desk/firm/Firm.h"

#include <fcntl.h>
#include <fstream>
#include <unistd.h>

#include "desk/firebird/EngineNames.h"
#include "desk/firebird/EngineTools.h"
#include "desk/firm/BulkTurn.h"
#include "desk/firm/OpeningNote.h"
#include "desk/firm/Schema.h"
#include "desk/firm/SchemaUpgrade.h"
#include "desk/firm/YearPlaces.h"
#include "host/data/CDataSet.h"
#include "host/services/FinYear.h"
#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

bool IsWritable(const fs::path& path) { return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0; }

/// Tells the engine of the firm's files, before it attaches any.
void TellEngine(const FirmFile& file, std::vector<std::string> files = {}) {
  const auto add = [&files](const FirebirdAddress& address) {
    if (!address.IsServer()) files.push_back(address.Database);
  };
  add(file.Common);
  for (const auto& [start, year] : file.Years) add(year.Database);
  EngineNames::Tell(files);
}

std::string YearText(int startYear) {
  const std::string end = std::to_string(startYear + 1);
  return std::to_string(startYear) + "-" + end.substr(end.size() - 2);
}

void WriteDetails(FirebirdLink& common, const FirmDetails& details) {
  CDataSet row;
  row.Open("select * from Firm", common, 3, CDataSet::kLockOptimistic);
  row.AddNew();
  row.SetField("FirmName", details.FirmName);
  row.SetField("AuthName", details.AuthName);
  row.SetField("AuthDesig", details.AuthDesig);
  row.SetField("Address1", details.Address1);
  row.SetField("Address2", details.Address2);
  row.SetField("Address3", details.Address3);
  row.SetField("Station", details.Station);
  row.SetField("Pin", details.Pin);
  row.SetField("State", details.State);
  row.SetField("Phone", details.Phone);
  row.Update();
}

FirebirdAddress PlaceOf(const fs::path& folder, const FirebirdAddress& server, const std::string& name) {
  if (server.Database.empty()) return {(fs::absolute(folder).lexically_normal() / name).string(), "", ""};
  return {server.Database + "/" + name, server.User, server.Password};
}

/// The databases of a firm that is being made; those of one that does not get ready go again.
class Making {
 public:
  Making() = default;
  Making(const Making&) = delete;
  Making& operator=(const Making&) = delete;
  ~Making() {
    if (isDone_) return;
    for (const FirebirdAddress& address : made_) FirebirdAttachment::Delete(address);
  }

  template <class Fill>
  void Add(FirebirdAddress address, Fill fill) {
    if (!address.IsServer() && fs::exists(address.Database)) {
      throw HostError("There is a file " + address.Database + " already");
    }
    made_.push_back(address);
    address.WaitsForDisk = false;
    FirebirdAttachment::Create(address);
    fill(*FirebirdLink::Open(address, ""));
  }
  void Done() { isDone_ = true; }

 private:
  std::vector<FirebirdAddress> made_;
  bool isDone_ = false;
};

}  // namespace

std::unique_ptr<Firm> Firm::Open(const fs::path& folder, const FirmOptions& options) {
  return std::make_unique<Firm>(folder, options);
}

Firm::Firm(const fs::path& folder, const FirmOptions& options)
    : folder_(fs::absolute(folder)), steps_(*options.Steps), file_(FirmFile::Read(folder)) {
  TellEngine(file_);
  file_.Common.WaitsForDisk = options.WaitsForDisk;
  for (auto& [start, year] : file_.Years) year.Database.WaitsForDisk = options.WaitsForDisk;
  if (!file_.Common.IsServer()) Lock(options.TakeOver);
  common_ = OpenDatabase(file_.Common, "common");
  FindYears();
  if (Schema::Check(*common_, "The database " + file_.Common.Database, VersionAfter(steps_)) <
      VersionAfter(steps_)) {
    BringUp();
  }
  if (BulkTurn::Clear(*common_)) LetYearsIn();
}

/// Years that lie elsewhere since the firm was taken back have names of which the engine was not told.
void Firm::FindYears() {
  YearPlaces::ReadInto(file_, *common_);
  TellEngine(file_);
}

void Firm::LetEngineName(const FirebirdAddress& more) {
  if (more.IsServer()) return;
  more_.push_back(more.Database);
  TellEngine(file_, more_);
}

/// A program that was taking the firm back ended in between and has left the years shut.
void Firm::LetYearsIn() {
  for (const auto& [start, year] : file_.Years) {
    try {
      EngineTools::BringOnline(year.Database);
    } catch (const HostError&) {
      // It was not shut; one that cannot be opened is told when it is.
    }
  }
}

void Firm::Lock(const std::string& takeOver) {
  const std::string& common = file_.Common.Database;
  lock_.emplace(folder_, fs::exists(common) ? common : "", takeOver);
  if (!lock_->WasFirst()) return;
  const std::string unfinished = OpeningNote::Take(FirmLock::Folder().Path());
  if (fs::path(unfinished).parent_path() == fs::path(common).parent_path()) {
    throw HostError("The program that opened this firm last ended while it was opening " + unfinished +
                    ". The file may be damaged: restore a copy of it, or open the firm once more to try it");
  }
  if (lock_->KeepAlone()) SchemaUpgrade(folder_, file_, steps_).Recover();
  lock_->Share();
}

void Firm::BringUp() {
  common_.reset();
  if (lock_ && !lock_->KeepAlone()) {
    throw HostError(
        "The firm was made by an older version of this program and has to be brought up. "
        "Close the other programs that have it open first");
  }
  SchemaUpgrade(folder_, file_, steps_).Run();
  if (lock_) lock_->Share();
  common_ = OpenDatabase(file_.Common, "common");
}

std::shared_ptr<FirebirdLink> Firm::OpenDatabase(const FirebirdAddress& address, const std::string& label) {
  const std::string what = "The database " + address.Database;
  std::optional<OpeningNote> note;
  if (!address.IsServer()) {
    if (!fs::exists(address.Database)) throw HostError(what + " of the firm is missing");
    if (!IsWritable(address.Database)) throw HostError("There is no permission to write " + address.Database);
    if (address.Database != file_.Common.Database) FirmLock::Try(address.Database);
    note.emplace(FirmLock::Folder().Path(), address.Database);
  }
  std::shared_ptr<FirebirdLink> link;
  try {
    link = FirebirdLink::Open(address, label);
    Schema::Check(*link, what, VersionAfter(steps_));
    if (&address != &file_.Common) RefreshStatistics(*link);
  } catch (const DbError& error) {
    const char* why = address.IsServer() ? " cannot be opened on its server. " : " is damaged or in use. ";
    throw DbError(what + why + error.what(), error.SqlState(), error.Statement(), error.EngineText(),
                  error.Why());
  }
  return link;
}

/// They are worth their time when the year has grown by a quarter; how long its file was is noted where it is
/// not missed.
void Firm::RefreshStatistics(FirebirdLink& year) const {
  const FirebirdAddress& address = year.Address();
  std::uintmax_t noted = 0;
  std::uintmax_t size = 0;
  fs::path note;
  if (!address.IsServer()) {
    size = fs::file_size(address.Database);
    note = FirmLock::Folder().Path() / (year.Label() + ".size");
    std::ifstream(note) >> noted;
  }
  const bool hasGrown = noted > 0 && size > noted + noted / 4;
  if (hasGrown || Schema::LacksStatistics(year)) {
    Schema::RefreshStatistics(year);
  } else if (noted > 0) {
    return;
  }
  if (!note.empty()) std::ofstream(note) << size;
}

const FirmFile::Year& Firm::PlaceOfYear(int startYear) const {
  const auto year = file_.Years.find(startYear);
  if (year == file_.Years.end())
    throw HostError("The firm " + Name() + " has no year " + YearText(startYear));
  return year->second;
}

std::vector<int> Firm::Years() const {
  std::vector<int> years;
  for (const auto& [start, year] : file_.Years) years.push_back(start);
  return years;
}

const FirmYear& Firm::OpenYear(int startYear) {
  if (const auto open = years_.find(startYear); open != years_.end()) return open->second;
  const FirmFile::Year& year = PlaceOfYear(startYear);
  if (const auto other = BulkTurn::AsksToLeave(*common_)) {
    throw HostError("The years of this firm are closed for a while: " + other->Words() + ".");
  }
  FirmYear opened{startYear, year.StartDate, year.EndDate,
                  OpenDatabase(year.Database, std::to_string(startYear))};
  opened.Db->SetObserver(observer_);
  return years_.emplace(startYear, std::move(opened)).first->second;
}

std::vector<FirmLink> Firm::Links() const {
  std::vector<FirmLink> links = {{common_.get(), "the firm's common data"}};
  for (const auto& [start, year] : years_) {
    links.push_back({year.Db.get(), "the year " + YearName(start)});
  }
  return links;
}

void Firm::SetObserver(SqlObserver* observer) {
  observer_ = observer;
  common_->SetObserver(observer);
  for (auto& [start, year] : years_) year.Db->SetObserver(observer);
}

void CreateFirm(const fs::path& folder, const FirmDetails& details, const std::vector<int>& years,
                const FirebirdAddress& server) {
  std::error_code failed;
  fs::create_directories(folder, failed);
  if (failed || !IsWritable(folder)) {
    throw HostError("There is no permission to write in the folder " + folder.string());
  }
  if (fs::exists(FirmFile::PathIn(folder)))
    throw HostError("There is a firm in " + folder.string() + " already");
  if (server.Database.empty()) FirmLock::Choose(folder);
  FirmFile file;
  file.Name = details.FirmName;
  file.Common = PlaceOf(folder, server, "common.fdb");
  for (const int start : years) {
    file.Years[start] = {PlaceOf(folder, server, std::to_string(start) + ".fdb"), Date::Of(start, 4, 1),
                         Date::Of(start + 1, 3, 31)};
  }
  TellEngine(file);
  Making making;
  making.Add(file.Common, [&](FirebirdLink& link) {
    Schema::MakeCommon(link);
    WriteDetails(link, details);
  });
  for (const auto& [start, year] : file.Years) making.Add(year.Database, Schema::MakeYear);
  SchemaUpgrade(folder, file, AllSchemaSteps()).RaiseAll();
  // Last, so that a folder with firm.json holds a whole firm.
  file.Write(folder);
  making.Done();
}

}  // namespace quillon
