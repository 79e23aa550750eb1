#pragma once

#include <firebird/Interface.h>
#include <string>

namespace quillon {

/// The status that calls of the client library report to. A failed call throws a DbError with the statement
/// that the status was made for.
class FirebirdStatus final : public Firebird::BaseStatusWrapper<FirebirdStatus> {
 public:
  explicit FirebirdStatus(const std::string& statement);
  static void checkException(FirebirdStatus* status);

 private:
  const std::string& statement_;
};

/// The same where nobody can be told: destructors. Failures are passed over.
Firebird::CheckStatusWrapper SilentStatus();

}  // namespace quillon
