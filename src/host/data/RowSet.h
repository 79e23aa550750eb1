#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "host/values/Variant.h"

namespace quillon {

/// The rows of an opened query, as a database driver gives them to CDataSet. Rows count from 0.
class RowSet {
 public:
  /// Fields by their number, with the values that they are given.
  using Changes = std::vector<std::pair<std::size_t, Variant>>;

  /// What the rows are opened for.
  struct Wish {
    bool Changeable = false;           ///< they can be changed and added to
    bool Keep = false;                 ///< they stay readable after the link is gone
    std::vector<std::string> Reads{};  ///< columns of a table asked whole ("a.*") of which no other is read
  };

  RowSet() = default;
  RowSet(const RowSet&) = delete;
  RowSet& operator=(const RowSet&) = delete;
  virtual ~RowSet() = default;

  /// The names as the query gives them, in the database's capitals.
  virtual const std::vector<std::string>& FieldNames() const = 0;

  /// Makes the row at hand readable, fetching as far as needed; false past the end.
  virtual bool Seek(std::int64_t row) = 0;

  /// The number of rows; fetches to the end.
  virtual std::int64_t Count() = 0;

  /// A field of a row that Seek has reached.
  virtual Variant Value(std::int64_t row, std::size_t field) = 0;

  /// Fetches what is left and lets the connection go.
  virtual void Detach() = 0;

  /// Writes the given fields of a row back, by the primary key of the table that the row came from, or adds a
  /// row; throws HostError on a set that was not opened for change.
  virtual void Write(std::int64_t row, const Changes& fields) = 0;
  virtual void Append(const Changes& fields) = 0;
};

}  // namespace quillon
