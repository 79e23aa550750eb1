#include "desk/firm/SchemaUpgrade.h"

#include <algorithm>
#include <fstream>

#include "desk/firebird/JointTransaction.h"
#include "desk/firm/Schema.h"
#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

constexpr const char* kCopy = ".before";

/// Stands in the folder as long as the copies are what counts.
fs::path MarkIn(const fs::path& folder) { return folder / "firm.upgrade"; }

void PutCopiesBack(const fs::path& folder) {
  std::vector<fs::path> copies;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == kCopy) copies.push_back(entry.path());
  }
  for (const fs::path& copy : copies) fs::rename(copy, fs::path(copy).replace_extension());
}

std::string NameOf(const FirebirdAddress& address) { return "The database " + address.Database; }

}  // namespace

std::vector<SchemaUpgrade::Database> SchemaUpgrade::Databases() const {
  std::vector<Database> databases;
  for (const auto& [start, year] : file_.Years) {
    databases.push_back({SchemaStep::Database::kYear, year.Database});
  }
  databases.push_back({SchemaStep::Database::kCommon, file_.Common});
  return databases;
}

/// A database that is being raised, and where it stands.
struct SchemaUpgrade::Raised {
  SchemaStep::Database Kind;
  std::shared_ptr<FirebirdLink> Link;
  int Version;
};

void SchemaUpgrade::RaiseFrom(int version, std::vector<Raised>& databases) const {
  std::vector<FirebirdLink*> links;
  for (const Raised& database : databases) {
    if (database.Version == version) links.push_back(database.Link.get());
  }
  if (links.empty()) return;
  JointTransaction work(links);
  for (Raised& database : databases) {
    if (database.Version != version) continue;
    for (const SchemaStep& step : steps_) {
      if (step.Kind != database.Kind || step.From != version) continue;
      for (const std::string& statement : step.Statements) work.Execute(*database.Link, statement);
    }
    ++database.Version;
    work.Execute(*database.Link, "update SchemaVersion set Version=" + std::to_string(database.Version));
  }
  work.Commit();
}

void SchemaUpgrade::RaiseAll() const {
  if (steps_.empty()) return;
  const int newest = VersionAfter(steps_);
  std::vector<Raised> databases;
  for (const Database& database : Databases()) {
    const auto link = FirebirdLink::Open(database.Address, "");
    const int version = Schema::Check(*link, NameOf(database.Address), newest);
    databases.push_back({database.Kind, link, version});
  }
  for (int version = 1; version < newest; ++version) RaiseFrom(version, databases);
}

bool SchemaUpgrade::IsOnServer() const {
  const std::vector<Database> all = Databases();
  return std::any_of(all.begin(), all.end(), [](const Database& each) { return each.Address.IsServer(); });
}

void SchemaUpgrade::Copy() const {
  for (const Database& database : Databases()) {
    if (database.Address.IsServer()) continue;
    fs::copy_file(database.Address.Database, database.Address.Database + kCopy,
                  fs::copy_options::overwrite_existing);
  }
  std::ofstream mark(MarkIn(folder_));
  mark << "The files that end in " << kCopy << " are the firm until this file is gone.\n";
  if (!mark.flush()) throw HostError("The folder " + folder_.string() + " cannot be written");
}

void SchemaUpgrade::DropCopies() const {
  fs::remove(MarkIn(folder_));
  for (const Database& database : Databases()) {
    if (!database.Address.IsServer()) fs::remove(database.Address.Database + kCopy);
  }
}

void SchemaUpgrade::Recover() const {
  if (!fs::exists(MarkIn(folder_))) return;
  // Where the years lie now only the common database knows, which is a copy itself: so what lies there
  // counts.
  for (const Database& database : Databases()) {
    if (!database.Address.IsServer()) PutCopiesBack(fs::path(database.Address.Database).parent_path());
  }
  fs::remove(MarkIn(folder_));
}

void SchemaUpgrade::Run() const {
  try {
    Copy();
    RaiseAll();
    DropCopies();
  } catch (const DbError& error) {
    Recover();
    const std::string state = IsOnServer()
                                  ? "Its databases stand together at the last version that all took. "
                                  : "It is as it was. ";
    throw DbError("The firm was made by an older version of this program and cannot be brought up. " + state +
                      error.what(),
                  error.SqlState(), error.Statement(), error.EngineText(), error.Why());
  } catch (const fs::filesystem_error& error) {
    Recover();
    throw HostError(
        "The firm was made by an older version of this program and cannot be brought up, "
        "because its files cannot be copied: " +
        std::string(error.what()));
  } catch (const HostError&) {
    Recover();
    throw;
  }
}

}  // namespace quillon
