#include "desk/firm/SchemaUpgrade.h"

#include <fstream>

#include "desk/firm/Schema.h"
#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

constexpr const char* kCopy = ".before";

/// Stands in the folder as long as the copies are what counts.
fs::path MarkIn(const fs::path& folder) { return folder / "firm.upgrade"; }

std::string NameOf(const FirebirdAddress& address) { return "The database " + address.Database; }

}  // namespace

std::vector<SchemaUpgrade::Database> SchemaUpgrade::Databases() const {
  std::vector<Database> databases;
  for (const auto& [start, year] : file_.Years) {
    databases.push_back({SchemaStep::Database::kYear, year.Database});
  }
  // Last, because a firm is as old as its common database.
  databases.push_back({SchemaStep::Database::kCommon, file_.Common});
  return databases;
}

void SchemaUpgrade::Raise(const Database& database) const {
  const auto link = FirebirdLink::Open(database.Address, "");
  const int newest = VersionAfter(steps_);
  for (int version = Schema::Check(*link, NameOf(database.Address), newest); version < newest; ++version) {
    for (const SchemaStep& step : steps_) {
      if (step.Kind != database.Kind || step.From != version) continue;
      for (const std::string& statement : step.Statements) link->Execute(statement);
    }
    link->Execute("update SchemaVersion set Version=" + std::to_string(version + 1));
  }
}

void SchemaUpgrade::RaiseAll() const {
  if (steps_.empty()) return;
  for (const Database& database : Databases()) Raise(database);
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
  for (const Database& database : Databases()) {
    const std::string& name = database.Address.Database;
    if (!database.Address.IsServer() && fs::exists(name + kCopy)) fs::rename(name + kCopy, name);
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
    throw DbError(
        "The firm was made by an older version of this program and cannot be brought up. It is as it was. " +
            std::string(error.what()),
        error.SqlState(), error.Statement(), error.EngineText(), error.Why());
  } catch (const fs::filesystem_error& error) {
    Recover();
    throw HostError(
        "The firm was made by an older version of this program and cannot be brought up, because its files "
        "cannot be copied: " +
        std::string(error.what()));
  } catch (const HostError&) {
    Recover();
    throw;
  }
}

}  // namespace quillon
