#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "desk/safety/BookCopies.h"
#include "desk/safety/BulkJournal.h"

namespace quillon {

/// Puts the years of a firm back to the copies that were made before a run. The copies are restored beside
/// the years and proved; then one commit in the common database moves all years at once, so that whatever
/// ends the program leaves wholly the present or wholly the past. What was there stays as a copy that can be
/// gone back to in turn.
class GoingBack {
 public:
  /// So many seconds others are given to leave the years.
  static constexpr int kPatience = 60;

  /// `run` is the journal's number. Throws HostError when its copies are gone.
  GoingBack(Firm& firm, int run, std::string user);

  /// What came after the run and would be lost with it, a line for each table; empty when nothing did. `firm`
  /// may have its years open.
  std::vector<std::string> Since() const;

  /// Does it. This program must have none of the years open. Others are asked to leave and, after `patience`
  /// seconds, thrown out. Throws HostError in plain words; the firm is then as it was.
  void Do(int patience = kPatience);

 private:
  struct Year {
    BookCopy Copy;
    FirebirdAddress Now;
    FirebirdAddress Then;
  };

  void RestoreAll();
  void DropRestored();
  void Empty(int patience) const;
  void LetIn() const;
  void Switch(int left);
  int NoteWhatIsLeft();

  Firm& firm_;
  BookCopies copies_;
  BulkJournal journal_;
  BulkEntry entry_;
  std::string user_;
  std::vector<Year> years_;
};

}  // namespace quillon
