#include "desk/firebird/JointTransaction.h"

#include <ibase.h>

#include "desk/firebird/EngineWatch.h"
#include "desk/firebird/FirebirdEngine.h"
#include "desk/firebird/FirebirdStatus.h"

namespace quillon {

JointTransaction::JointTransaction(const std::vector<FirebirdLink*>& links)
    : address_(links.front()->Address()) {
  const std::string none;
  FirebirdStatus status(none);
  const EngineWatch::Call call(address_);
  Firebird::IDtcStart* const start = FirebirdEngine::Master().getDtc()->startBuilder(&status);
  try {
    for (const FirebirdLink* link : links) start->addAttachment(&status, link->Handle());
    transaction_ = start->start(&status);
  } catch (...) {
    start->dispose();
    throw;
  }
}

JointTransaction::~JointTransaction() {
  if (transaction_ == nullptr) return;
  const EngineWatch::Call call(address_);
  Firebird::CheckStatusWrapper status = SilentStatus();
  transaction_->rollback(&status);
  if (status.hasData()) transaction_->release();
}

void JointTransaction::Execute(const FirebirdLink& link, const std::string& sql) {
  FirebirdStatus status(sql);
  const EngineWatch::Call call(link.Address(), link.Handle());
  link.Handle()->execute(&status, transaction_, static_cast<unsigned>(sql.size()), sql.c_str(),
                         SQL_DIALECT_V6, nullptr, nullptr, nullptr, nullptr);
}

void JointTransaction::Commit() {
  const std::string none;
  FirebirdStatus status(none);
  const EngineWatch::Call call(address_);
  transaction_->commit(&status);
  transaction_ = nullptr;
}

}  // namespace quillon
