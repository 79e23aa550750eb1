#pragma once

#include <optional>
#include <string>
#include <vector>

#include "books/EntryRows.h"
#include "host/data/CDbLink.h"
#include "host/values/Date.h"

namespace quillon {

/// What a screen has stored of cleared dates, act by act, so that the user can take it back and put it back.
/// Only where the books still hold what was stored is a date changed; what somebody else has changed since
/// stays.
class ClearedDates {
 public:
  struct Change {
    books::EntryKey Entry;
    Date Before;
    Date After;
  };

  /// What was noted while one lives is one act; inside an act that is open already it is a part of that one.
  class Act {
   public:
    explicit Act(ClearedDates& dates) : dates_(dates) {
      if (dates_.open_++ == 0) dates_.begins_ = true;
    }
    Act(const Act&) = delete;
    Act& operator=(const Act&) = delete;
    ~Act() { --dates_.open_; }

   private:
    ClearedDates& dates_;
  };

  /// The date was stored. What was taken back before can be put back no more.
  void Note(const Change& change);

  /// What was done, each entry with the date that it has now in After, and how many had been changed since.
  struct Outcome {
    std::vector<Change> Done;
    std::size_t ChangedSince = 0;
  };

  /// The last act is taken back, or the one taken back last is put back, in one transaction; nothing when
  /// there is none. Throws what the link throws, and the act stays.
  std::optional<Outcome> TakeBack(CDbLink& link);
  std::optional<Outcome> PutBack(CDbLink& link);

  void Forget();

 private:
  using Changes = std::vector<Change>;

  static std::optional<Outcome> Turn(CDbLink& link, std::vector<Changes>& from, std::vector<Changes>& to);

  std::vector<Changes> past_;
  std::vector<Changes> future_;
  int open_ = 0;
  bool begins_ = false;  // nothing of the open act was noted yet
};

/// What the user is told of it: "37 dates taken back, 2 had been changed since."; `done` is "taken back" or
/// "put back".
std::string WordsOf(const std::optional<ClearedDates::Outcome>& outcome, const std::string& done);

}  // namespace quillon
