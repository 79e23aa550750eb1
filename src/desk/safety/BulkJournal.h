#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/data/CDbLink.h"

namespace quillon {

/// A line of the journal of bulk work. Times are "2024-04-01 10:15:00".
struct BulkEntry {
  int Run = 0;
  std::string BeganAt{};
  std::string EndedAt{};  ///< empty for a run that is at work or was broken off
  std::string User{};
  std::string FormKey{};
  std::string Screen{};  ///< "Mass Deletion"
  std::int64_t Account = 0;
  std::string AccountName{};
  std::string Choices{};  ///< what was filled in, a line for each field
  std::string Told{};     ///< the messages with what was answered, a line for each
  std::string Outcome{};

  /// "No. 7, Mass Deletion of Asha Traders, 01-Apr-2024 10:15, by Meera"
  std::string Words() const;
};

/// The journal of bulk work in a firm's common database.
class BulkJournal {
 public:
  static constexpr const char* kDone = "Done";
  static constexpr const char* kNothing = "Nothing changed";
  static constexpr const char* kUncopied = "Done without a copy";
  static constexpr const char* kUnrun = "Not run: no copy";
  static constexpr const char* kGoneBack = "Gone back";
  static constexpr const char* kBrokenOff = "Broken off";

  explicit BulkJournal(CDbLink& common) : common_(common) {}

  /// Writes the line of a run that begins and answers its number. The caller has the turn.
  int Begin(const BulkEntry& entry);
  void End(int run, const std::string& outcome, const std::string& choices, const std::string& told);

  /// The run was undone by going back to its copy.
  void NoteGoneBack(int run);

  /// The last one first.
  std::vector<BulkEntry> All() const;

  /// Throws HostError for a number that no line has.
  BulkEntry Of(int run) const;

  /// Those that have not ended, without the one whose program is at it now.
  std::vector<BulkEntry> BrokenOff(bool oneIsAtWork) const;

 private:
  std::vector<BulkEntry> Read(const std::string& condition) const;

  CDbLink& common_;
};

}  // namespace quillon
