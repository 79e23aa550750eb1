#include "desk/firm/Firm.h"

#include <fcntl.h>
#include <unistd.h>

#include "desk/firm/Schema.h"
#include "host/data/CDataSet.h"
#include "host/services/FinYear.h"
#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

bool IsWritable(const fs::path& path) { return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0; }

std::shared_ptr<FirebirdLink> OpenDatabase(const FirebirdAddress& address, const std::string& label) {
  const std::string what = "The database " + address.Database;
  if (!address.IsServer()) {
    if (!fs::exists(address.Database)) throw HostError(what + " of the firm is missing");
    if (!IsWritable(address.Database)) throw HostError("There is no permission to write " + address.Database);
  }
  std::shared_ptr<FirebirdLink> link;
  try {
    link = FirebirdLink::Open(address, label);
  } catch (const DbError& error) {
    const char* why = address.IsServer() ? " cannot be opened on its server. " : " is damaged or in use. ";
    throw DbError(what + why + error.what(), error.SqlState(), error.Statement(), error.EngineText(),
                  error.Why());
  }
  Schema::Check(*link, what);
  return link;
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

template <class Fill>
void MakeDatabase(const FirebirdAddress& address, Fill fill) {
  if (!address.IsServer() && fs::exists(address.Database)) {
    throw HostError("There is a file " + address.Database + " already");
  }
  FirebirdAttachment::Create(address);
  fill(*FirebirdLink::Open(address, ""));
}

}  // namespace

std::unique_ptr<Firm> Firm::Open(const fs::path& folder) { return std::make_unique<Firm>(folder); }

Firm::Firm(const fs::path& folder) : folder_(fs::absolute(folder)), file_(FirmFile::Read(folder)) {
  if (!file_.Common.IsServer()) lock_.emplace(folder_);
  common_ = OpenDatabase(file_.Common, "common");
}

std::vector<int> Firm::Years() const {
  std::vector<int> years;
  for (const auto& [start, year] : file_.Years) years.push_back(start);
  return years;
}

const FirmYear& Firm::OpenYear(int startYear) {
  if (const auto open = years_.find(startYear); open != years_.end()) return open->second;
  const auto year = file_.Years.find(startYear);
  if (year == file_.Years.end())
    throw HostError("The firm " + Name() + " has no year " + YearText(startYear));
  FirmYear opened{startYear, year->second.StartDate, year->second.EndDate,
                  OpenDatabase(year->second.Database, std::to_string(startYear))};
  Schema::RefreshStatistics(*opened.Db);
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
  FirmFile file;
  file.Name = details.FirmName;
  file.Common = PlaceOf(folder, server, "common.fdb");
  MakeDatabase(file.Common, [&](FirebirdLink& link) {
    Schema::MakeCommon(link);
    WriteDetails(link, details);
  });
  for (const int start : years) {
    FirmFile::Year& year = file.Years[start];
    year = {PlaceOf(folder, server, std::to_string(start) + ".fdb"), Date::Of(start, 4, 1),
            Date::Of(start + 1, 3, 31)};
    MakeDatabase(year.Database, Schema::MakeYear);
  }
  // Last, so that a folder with firm.json holds a whole firm.
  file.Write(folder);
}

}  // namespace quillon
