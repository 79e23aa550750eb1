#include "maintenance/EntryTransfer.h"

#include "books/SqlText.h"
#include "host/forms/Progress.h"

namespace quillon {

namespace {

/// The series of documents that the accounts made themselves.
constexpr const char* kOwnSeries = "FAS";

bool IsLocked(const CDataSet& row) { return row.Field("dLocked").ToInteger() == 1; }

}  // namespace

void EntryTransfer::Move(CDataSet& entries) {
  Progress progress("Transferring the entries", entries.RecordCount());
  for (; !entries.Eof(); entries.MoveNext()) {
    if (TakeDocument(entries)) MoveRow(entries);
    progress.Step();
  }
}

bool EntryTransfer::TakeDocument(const CDataSet& entry) {
  if (IsLocked(entry)) {
    ++Locked;
    return false;
  }
  CDataSet document;
  document.Open(
      "Select * From DocMain Where DocVoucherID=" + books::SqlNumber(entry.Field("VOUCHERID").ToInteger()),
      db_, 1, CDataSet::kLockOptimistic);
  if (document.Eof()) return true;
  if (IsLocked(document)) {
    ++Locked;
    return false;
  }
  if (document.Field("PartyCode").ToInteger() == from_) {
    document.SetField("PartyCode", to_);
    document.Update();
    return true;
  }
  if (document.Field("DocSeries").ToText() == kOwnSeries) return true;
  ++Held;
  return false;
}

/// The voucher's other lines that named the old account as their other side name the new one.
void EntryTransfer::MoveRow(CDataSet& entry) {
  const std::string voucher = books::SqlNumber(entry.Field("VOUCHERID").ToInteger());
  const std::string from = books::SqlNumber(from_);
  const std::string to = books::SqlNumber(to_);
  entry.SetField("dcd", to_);
  entry.Update();
  db_.Execute("Update RefMaster Set RefCode=" + to + " Where RefCode=" + from + " and VoucherID=" + voucher);
  db_.Execute("Update FAData Set DCD2=" + to + " Where DCD2=" + from + " And VoucherID=" + voucher);
  ++Transferred;
}

}  // namespace quillon
