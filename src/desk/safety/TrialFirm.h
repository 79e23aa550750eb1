#pragma once

#include <string>
#include <vector>

#include "desk/safety/CopiedFirm.h"

namespace quillon {

/// What a trial changed: a row of the books, by the columns that differ, or the balance of an account.
struct TrialLine {
  std::string Year;   ///< "2024-25"
  std::string What;   ///< "Balance", "Entry added", "Account changed"
  std::string Which;  ///< the account's head, or the row's key
  std::string Before;
  std::string After;
};

/// A copied firm in which work is tried, and what it changed there. Its folder goes with it.
class TrialFirm {
 public:
  /// Throws HostError in plain words.
  TrialFirm(Firm& firm, int run) : firm_(firm), tried_(firm, run, CopiedFirm::Use::kTrial) {}
  TrialFirm(const TrialFirm&) = delete;
  TrialFirm& operator=(const TrialFirm&) = delete;
  ~TrialFirm();

  const std::filesystem::path& Folder() const { return tried_.Folder(); }

  /// Compares its years with the copies, when whoever tried something has left them.
  std::vector<TrialLine> Compare() const;

  /// A setting that the trial has left in its common database.
  std::string Setting(const std::string& key) const;

 private:
  Firm& firm_;
  CopiedFirm tried_;
};

}  // namespace quillon
