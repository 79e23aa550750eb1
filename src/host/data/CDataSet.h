#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/data/CDbLink.h"
#include "host/data/RowSet.h"

namespace quillon {

/// A record set: opened on a query, walked, closed. One instance can be opened again after Close.
class CDataSet {
 public:
  /// Lock mode 3 makes a set changeable, whatever its cursor mode.
  static constexpr int kLockOptimistic = 3;
  static constexpr int kUseClient = 3;

  CDataSet() = default;
  ~CDataSet() = default;
  CDataSet(CDataSet&&) = default;
  CDataSet& operator=(CDataSet&&) = default;

  /// Closes an open set first. Throws DbError.
  void Open(const std::string& sql, CDbLink& link, int cursorMode = 1, int lockMode = 1);

  /// 3, set before Open, on sets that are kept after the connection is dropped.
  int CursorLocation = 0;

  /// Set before Open on a query for all columns of a table ("a.*") that lists many rows: the columns that
  /// will be read. Others may then be missing.
  std::vector<std::string> Reads;

  /// Nothing detaches an open set: its rows are read to the end and stay readable.
  void SetActiveConnection(std::nullptr_t);

  /// The field of the current row; throws SubscriptError for a name or number that the query does not give,
  /// and HostError before the first and past the last row.
  Variant Field(const std::string& name) const;
  Variant Field(std::size_t index) const;
  const std::vector<std::string>& FieldNames() const;

  void SetField(const std::string& name, const Variant& value);
  void AddNew();

  /// Writes what SetField changed; without a change nothing is sent.
  void Update();

  bool Eof() const { return row_ < 0 ? empty_ : atEnd_; }
  bool Bof() const { return row_ < 0 || empty_; }
  void MoveFirst();
  void MoveNext();
  void MovePrevious();
  void MoveLast();
  std::int64_t RecordCount();

  /// "NAME=number": moves to the first such row, searching from the first; Eof when none.
  void Find(const std::string& criteria);

  /// 1 when open, else 0.
  int State() const { return rows_ ? 1 : 0; }
  void Close();

 private:
  RowSet& Opened() const;
  std::size_t IndexOf(const std::string& name) const;
  void NoteNames();
  void Go(std::int64_t row);

  std::unique_ptr<RowSet> rows_;
  std::int64_t row_ = -1;
  bool atEnd_ = true;
  bool empty_ = true;
  std::vector<std::size_t> firstOfName_;  // for each field the first one with its name
  mutable std::size_t nextField_ = 0;
  bool adding_ = false;
  RowSet::Changes changed_;
};

/// The texts of the first column of a query's rows; nulls are left out.
std::vector<std::string> FirstColumn(const std::string& query, CDbLink& db);

}  // namespace quillon
