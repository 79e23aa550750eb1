#pragma once

#include <string>
#include <vector>

#include "desk/firebird/FirebirdLink.h"

namespace quillon {

/// One transaction over several databases: all of it is stored in all of them, or nothing in any. What a
/// statement makes, such as a table, can be filled after the commit only.
class JointTransaction {
 public:
  /// The links must outlive it. Throws DbError.
  explicit JointTransaction(const std::vector<FirebirdLink*>& links);
  JointTransaction(const JointTransaction&) = delete;
  JointTransaction& operator=(const JointTransaction&) = delete;
  ~JointTransaction();

  /// Carries a statement out in one of the databases. Throws DbError.
  void Execute(const FirebirdLink& link, const std::string& sql);

  /// Throws DbError; what was done is then rolled back when the object dies.
  void Commit();

 private:
  FirebirdAddress address_;  // of one of them, for the watch
  Firebird::ITransaction* transaction_ = nullptr;
};

}  // namespace quillon
