#pragma once

#include <filesystem>
#include <string>

namespace quillon {

/// Says, as long as it lives, that a database is being opened: a note that is left over tells that the
/// program did not survive it.
class OpeningNote {
 public:
  OpeningNote(const std::filesystem::path& folder, const std::string& database);
  OpeningNote(const OpeningNote&) = delete;
  OpeningNote& operator=(const OpeningNote&) = delete;
  ~OpeningNote();

  /// The database that a left-over note in the folder names, which goes with this; empty where there is none.
  /// Nobody else may be opening one.
  static std::string Take(const std::filesystem::path& folder);

 private:
  std::filesystem::path file_;
};

}  // namespace quillon
