#pragma once

#include <cstdint>
#include <string>

#include "host/data/CDataSet.h"

namespace quillon {

/// Moves entries of one account to another, row after row, each for good; a voucher's document goes with it.
class EntryTransfer {
 public:
  EntryTransfer(CDbLink& db, std::int64_t from, std::int64_t to) : db_(db), from_(from), to_(to) {}

  /// The rows of a set of FAData that is open for change.
  void Move(CDataSet& entries);

  std::int64_t Transferred = 0;
  std::int64_t Locked = 0;  ///< stayed, for the entry or its document is locked
  std::int64_t Held = 0;    ///< stayed, for the document belongs to another part of the books

 private:
  /// Whether the row may go; its document is the new account's then.
  bool TakeDocument(const CDataSet& entry);
  void MoveRow(CDataSet& entry);

  CDbLink& db_;
  std::int64_t from_;
  std::int64_t to_;
};

}  // namespace quillon
