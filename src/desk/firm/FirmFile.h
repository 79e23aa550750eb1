#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "desk/firebird/FirebirdAttachment.h"
#include "host/values/Date.h"

namespace quillon {

/// What firm.json says: the firm's name and where its databases are.
struct FirmFile {
  /// A database: a file name beside firm.json, or "inet://host:port/path" on a server with a user and a
  /// password.
  struct Year {
    FirebirdAddress Database;
    Date StartDate;
    Date EndDate;
  };

  std::string Name;
  FirebirdAddress Common;
  std::map<int, Year> Years;  ///< by the calendar year in which they start

  /// Throws HostError, in plain words, when the folder or the file is missing, damaged or of a newer schema.
  /// File names come back as whole paths.
  static FirmFile Read(const std::filesystem::path& folder);

  /// Puts the file in place whole, readable by its owner alone when it holds a password. Files inside the
  /// folder are written as bare names.
  void Write(const std::filesystem::path& folder) const;

  bool HasPassword() const;

  static std::filesystem::path PathIn(const std::filesystem::path& folder) { return folder / "firm.json"; }
};

}  // namespace quillon
