#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/firebird/FirebirdLink.h"
#include "desk/firm/FirmFile.h"
#include "desk/firm/FirmLock.h"
#include "desk/firm/SchemaSteps.h"

namespace quillon {

/// What a firm is known by: its row in the common database.
struct FirmDetails {
  std::string FirmName;
  std::string AuthName;
  std::string AuthDesig;
  std::string Address1;
  std::string Address2;
  std::string Address3;
  std::string Station;
  std::string Pin;
  std::string State;
  std::string Phone;
};

/// An opened financial year.
struct FirmYear {
  int StartYear = 0;
  Date StartDate;
  Date EndDate;
  std::shared_ptr<FirebirdLink> Db;
};

/// An open database of a firm, as a person calls it: "the year 2024-25", "the firm's common data".
struct FirmLink {
  FirebirdLink* Db = nullptr;
  std::string Name;
};

/// How a firm is opened.
struct FirmOptions {
  std::string TakeOver = {};  ///< the machine whose lock is void by the user's word
  const std::vector<SchemaStep>* Steps = &AllSchemaSteps();  ///< what brings an older firm up
  bool WaitsForDisk = true;                                  ///< false while the firm is being made
};

/// A firm: a folder with firm.json, a common database and one for each financial year.
class Firm {
 public:
  /// Brings an older firm up and opens the common database. Throws HostError in plain words when that cannot
  /// be done, and what FirmLock throws.
  static std::unique_ptr<Firm> Open(const std::filesystem::path& folder, const FirmOptions& options = {});

  /// Use Open.
  Firm(const std::filesystem::path& folder, const FirmOptions& options);

  const std::string& Name() const { return file_.Name; }
  const std::filesystem::path& Folder() const { return folder_; }
  const std::shared_ptr<FirebirdLink>& Common() const { return common_; }

  /// The calendar years in which the firm's years start, the earliest first.
  std::vector<int> Years() const;
  bool HasYear(int startYear) const { return file_.Years.contains(startYear); }

  /// Where a year lies. Throws HostError for a year that the firm does not have.
  const FirmFile::Year& PlaceOfYear(int startYear) const;

  /// One link for each year, opened at its first use. Throws HostError for a year that the firm does not have
  /// or whose database cannot be opened.
  const FirmYear& OpenYear(int startYear);

  /// Lets the engine name another file of the firm, which is about to be made or opened.
  void LetEngineName(const FirebirdAddress& more);

  /// The databases that are open.
  std::vector<FirmLink> Links() const;

  /// Is told of the statements of all links, those opened later too; nothing takes it off.
  void SetObserver(SqlObserver* observer);

 private:
  void Lock(const std::string& takeOver);
  void BringUp();
  void FindYears();
  void LetYearsIn();
  std::shared_ptr<FirebirdLink> OpenDatabase(const FirebirdAddress& address, const std::string& label);
  void RefreshStatistics(FirebirdLink& year) const;

  std::filesystem::path folder_;
  const std::vector<SchemaStep>& steps_;
  FirmFile file_;
  std::optional<FirmLock> lock_;
  std::shared_ptr<FirebirdLink> common_;
  std::map<int, FirmYear> years_;
  std::vector<std::string> more_;  // files besides those of firm.json that the engine is to know
  SqlObserver* observer_ = nullptr;
};

/// Makes a firm without accounts and entries in a folder, which is made too. `server` is a place on a server
/// where the databases go, such as "inet://host:port//srv/books", with its user; without one they are files
/// in the folder. Throws HostError when there is a firm already or the place cannot be written; nothing of it
/// is left then.
void CreateFirm(const std::filesystem::path& folder, const FirmDetails& details,
                const std::vector<int>& years, const FirebirdAddress& server = {});

}  // namespace quillon
