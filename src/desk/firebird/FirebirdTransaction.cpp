#include "desk/firebird/FirebirdTransaction.h"

#include <vector>

#include "desk/firebird/FirebirdStatus.h"

namespace quillon {

namespace {

constexpr unsigned char kLockSeconds = 2;

std::vector<unsigned char> Parameters(FirebirdTransaction::Kind kind) {
  if (kind == FirebirdTransaction::Kind::kSnapshot) {
    return {isc_tpb_version3, isc_tpb_concurrency, isc_tpb_read, isc_tpb_nowait};
  }
  std::vector<unsigned char> tpb{isc_tpb_version3, isc_tpb_read_committed, isc_tpb_rec_version};
  if (kind == FirebirdTransaction::Kind::kRead) {
    tpb.insert(tpb.end(), {isc_tpb_read, isc_tpb_nowait});
    return tpb;
  }
  tpb.push_back(isc_tpb_write);
  if (kind == FirebirdTransaction::Kind::kAutoCommit) {
    tpb.push_back(isc_tpb_nowait);
  } else {
    tpb.insert(tpb.end(), {isc_tpb_wait, isc_tpb_lock_timeout, 4, kLockSeconds, 0, 0, 0});
  }
  if (kind != FirebirdTransaction::Kind::kWork) tpb.push_back(isc_tpb_autocommit);
  return tpb;
}

}  // namespace

FirebirdTransaction::FirebirdTransaction(std::shared_ptr<FirebirdAttachment> attachment, Kind kind)
    : attachment_(std::move(attachment)) {
  const std::string none;
  FirebirdStatus status(none);
  const std::vector<unsigned char> tpb = Parameters(kind);
  transaction_ = (*attachment_)->startTransaction(&status, static_cast<unsigned>(tpb.size()), tpb.data());
}

FirebirdTransaction::~FirebirdTransaction() {
  if (!transaction_) return;
  Firebird::CheckStatusWrapper status = SilentStatus();
  transaction_->rollback(&status);
  if (status.hasData()) transaction_->release();
}

void FirebirdTransaction::Commit() {
  const std::string none;
  FirebirdStatus status(none);
  transaction_->commit(&status);
  transaction_ = nullptr;
}

}  // namespace quillon
