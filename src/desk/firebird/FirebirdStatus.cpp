#include "desk/firebird/FirebirdStatus.h"

#include <array>

#include "desk/firebird/FirebirdEngine.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

struct StatusDisposer {
  void operator()(Firebird::IStatus* status) const { status->dispose(); }
};

/// One status for each thread: the wrappers above it are short-lived and never nested.
Firebird::IStatus* ThreadStatus() {
  thread_local const std::unique_ptr<Firebird::IStatus, StatusDisposer> status(
      FirebirdEngine::Master().getStatus());
  status->init();
  return status.get();
}

std::string PlainWords(const std::string& sqlState) {
  if (sqlState == "40001") return "Another user is changing the same record just now.\n";
  if (FirebirdStatus::IsConnectionLost(sqlState)) return "The database cannot be reached.\n";
  return {};
}

}  // namespace

FirebirdStatus::FirebirdStatus(const std::string& statement)
    : BaseStatusWrapper(ThreadStatus()), statement_(statement) {}

void FirebirdStatus::checkException(FirebirdStatus* status) {
  if (!status->isDirty() || !status->hasData()) return;
  std::array<char, 2048> text{};
  FirebirdEngine::Master().getUtilInterface()->formatStatus(text.data(), text.size(), status->status);
  std::array<char, 6> state{};
  fb_sqlstate(state.data(), status->getErrors());
  throw DbError(PlainWords(state.data()) + text.data(), state.data(), status->statement_);
}

bool FirebirdStatus::IsConnectionLost(const std::string& sqlState) { return sqlState.starts_with("08"); }

Firebird::CheckStatusWrapper SilentStatus() { return {ThreadStatus()}; }

}  // namespace quillon
