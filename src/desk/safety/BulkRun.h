#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/firebird/BooksDigest.h"
#include "desk/firm/BulkTurn.h"
#include "desk/safety/BookCopies.h"
#include "desk/safety/BulkCheck.h"
#include "desk/safety/BulkJournal.h"

namespace quillon {

class DeskSession;

/// One run of a screen that changes many entries: it has the firm's turn, stands in the journal, has copies
/// of its years, and is held against them at its end. A run that is not ended stays in the journal as broken
/// off.
class BulkRun {
 public:
  /// Takes the turn and writes the journal's line; `work` says form, screen and account. Throws HostError
  /// when another has the turn.
  BulkRun(DeskSession& session, BulkEntry work, std::vector<int> years);
  BulkRun(const BulkRun&) = delete;
  BulkRun& operator=(const BulkRun&) = delete;
  ~BulkRun();

  /// Copies each year. Throws HostError in plain words; the run may then go on without a copy.
  void Copy();

  /// Reads the years for the check. Before the first row is changed it is looked whether others wrote since
  /// the copy, and the user asked to copy again.
  void Watch();

  int Number() const { return number_; }

  /// Writes what came of it to the journal and answers what the check found. A run that changed nothing keeps
  /// no copy.
  BulkFindings End(const std::string& choices, const std::string& told);

  /// The screen was not opened, for want of a copy.
  void EndUnrun() { journal_.End(number_, BulkJournal::kUnrun, "", ""); }

  /// The rows that the run changed, after End.
  std::size_t Changed() const { return changed_; }

 private:
  void ReadYears();
  void Begins();
  void AskAboutOthers();
  BulkFindings EndYear(int startYear);

  DeskSession& session_;
  BulkTurn turn_;
  BookCopies copies_;
  BulkJournal journal_;
  BulkEntry work_;
  std::vector<int> years_;
  std::map<int, std::unique_ptr<BulkCheck>> checks_;
  int number_;
  std::size_t changed_ = 0;
  bool isCopied_ = false;
  bool hasBegun_ = false;
};

}  // namespace quillon
