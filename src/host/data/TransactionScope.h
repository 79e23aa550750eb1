#pragma once

#include "host/data/CDbLink.h"

namespace quillon {

/// A transaction for the length of a block, undone unless Commit was reached. Inside a transaction that is
/// open already it is a part of that one, and the one who opened it decides.
class TransactionScope {
 public:
  explicit TransactionScope(CDbLink& link) : link_(link), own_(!link.InTransaction()) {
    if (own_) link_.BeginTrans();
  }
  TransactionScope(const TransactionScope&) = delete;
  TransactionScope& operator=(const TransactionScope&) = delete;
  ~TransactionScope() {
    if (!own_) return;
    try {
      link_.RollbackTrans();
    } catch (const std::exception&) {
      // The connection is gone, and what was not committed with it.
    }
  }

  void Commit() {
    if (!own_) return;
    link_.CommitTrans();
    own_ = false;
  }

 private:
  CDbLink& link_;
  bool own_;
};

}  // namespace quillon
