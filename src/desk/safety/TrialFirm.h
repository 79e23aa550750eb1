#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "desk/safety/BookCopies.h"

namespace quillon {

/// What a trial changed: a row of the books, by the columns that differ, or the balance of an account.
struct TrialLine {
  std::string Year;   ///< "2024-25"
  std::string What;   ///< "Balance", "Entry added", "Account changed"
  std::string Which;  ///< the account's head, or the row's key
  std::string Before;
  std::string After;
};

/// A firm of its own, made of the copies of a run and of a copy of the common database: what is tried there
/// changes nothing in the firm itself. Its folder goes with it.
class TrialFirm {
 public:
  /// Throws HostError in plain words.
  TrialFirm(Firm& firm, int run);
  TrialFirm(const TrialFirm&) = delete;
  TrialFirm& operator=(const TrialFirm&) = delete;
  ~TrialFirm();

  const std::filesystem::path& Folder() const { return folder_; }

  /// Whether the firm in a folder is one of trial.
  static bool IsIn(const std::filesystem::path& folder);

  /// Compares its years with the copies, when whoever tried something has left them.
  std::vector<TrialLine> Compare() const;

  /// A setting that the trial has left in its common database.
  std::string Setting(const std::string& key) const;

 private:
  FirebirdAddress Place(const std::string& name) const;
  void Make(int run);

  Firm& firm_;
  std::filesystem::path folder_;
  std::vector<BookCopy> copies_;
};

}  // namespace quillon
