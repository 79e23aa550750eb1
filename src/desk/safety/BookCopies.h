#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "desk/firm/Firm.h"

namespace quillon {

/// A copy of a year as it was before a run of bulk work.
struct BookCopy {
  int Run = 0;
  int StartYear = 0;
  std::string
      FileName{};  ///< in the folder of the copies; a database beside the year's for what a going back left
  std::int64_t Size = 0;  ///< bytes
  std::string MadeAt{};
  bool IsGone = false;
};

/// How many copies are kept.
struct CopyLimits {
  int Runs = 20;
  std::int64_t Megabytes = 4000;
};

/// The copies of a firm's years, in a folder of the firm's on this machine.
class BookCopies {
 public:
  explicit BookCopies(Firm& firm);

  /// Copies a year while others work in it and proves the copy: restored to a file of its own it has the very
  /// rows. Only then it is recorded, in place of an earlier one of the run. Throws HostError in plain words,
  /// and nothing is left.
  void Make(int run, int startYear);

  /// Records a database that stays beside the year's as the copy of what was there.
  void Record(const BookCopy& copy);

  /// Makes a database of a copy, proves that it has the very rows, and brings one of an older version of this
  /// program up. Throws HostError.
  void Restore(const BookCopy& copy, const FirebirdAddress& into) const;

  std::vector<BookCopy> Of(int run) const;
  std::vector<BookCopy> All() const;

  /// Takes the files of a run away. The journal goes on saying that there was a copy.
  void Drop(int run);

  /// Drops the oldest beyond the limits, but never those of the last run and of runs that have not ended.
  void DropBeyond(const CopyLimits& limits);

  /// Removes files that programs which were killed have left half made. Needs the firm's turn for bulk work.
  void RemoveLeft() const;

  /// Where it is noted what the rows of a year were before and after a run.
  std::filesystem::path Before(int run, int startYear) const;
  std::filesystem::path After(int run, int startYear) const;

 private:
  std::filesystem::path Stem(int run, int startYear) const;
  void RequireRoom(int startYear) const;
  void CopyAndProve(const FirebirdAddress& year, const std::filesystem::path& stem,
                    const std::string& name) const;
  std::vector<BookCopy> Read(const std::string& condition) const;

  Firm& firm_;
  FirebirdLink& common_;
  std::filesystem::path folder_;
};

}  // namespace quillon
