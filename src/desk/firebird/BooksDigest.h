#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "desk/firebird/FirebirdAttachment.h"

namespace quillon {

/// A row that differs between two states of a database, by the values of its table's primary key.
struct RowChange {
  enum class Kind { kAdded, kGone, kChanged };

  std::string Table;  ///< in capitals
  std::string Key;    ///< the values joined by commas; of a table without a key the whole row
  Kind What;
};

/// What all rows of a database were at one moment: enough to tell two states apart and which rows changed.
class BooksDigest {
 public:
  /// Reads every table as it is at one moment, while others work. Throws DbError.
  static BooksDigest Of(const FirebirdAddress& database);

  /// Throws HostError when the file is missing, damaged or cannot be written.
  static BooksDigest Read(const std::filesystem::path& file);
  void Write(const std::filesystem::path& file) const;

  bool operator==(const BooksDigest&) const = default;

  /// The rows that differ in a later state, table by table in the order of their keys.
  std::vector<RowChange> ChangesTo(const BooksDigest& later) const;

 private:
  struct Row {
    std::string Key;
    std::uint64_t Content = 0;
    auto operator<=>(const Row&) const = default;
  };
  using Rows = std::vector<Row>;  // in order

  std::map<std::string, Rows> tables_;
};

}  // namespace quillon
