#pragma once

#include <memory>

#include "desk/firebird/FirebirdAttachment.h"

namespace Firebird {
class ITransaction;
}

namespace quillon {

/// A transaction; what is not committed when it ends is rolled back. It sees what others have committed, but
/// for a snapshot.
class FirebirdTransaction {
 public:
  enum class Kind {
    kRead,        ///< Reads only; costs nothing while it stays open.
    kSnapshot,    ///< Reads only, and sees the books as they were when it began.
    kAutoCommit,  ///< The engine commits each statement; a record that another one is changing fails it at
                  ///< once.
    kPatient,     ///< The same, but it waits two seconds for the record.
    kWork,        ///< Holds until Commit, and waits like that.
  };

  /// Throws DbError.
  FirebirdTransaction(std::shared_ptr<FirebirdAttachment> attachment, Kind kind);
  FirebirdTransaction(const FirebirdTransaction&) = delete;
  FirebirdTransaction& operator=(const FirebirdTransaction&) = delete;
  ~FirebirdTransaction();

  /// Throws DbError; what was done is then rolled back when the object dies.
  void Commit();

  const std::shared_ptr<FirebirdAttachment>& Attachment() const { return attachment_; }
  Firebird::ITransaction* Handle() const { return transaction_; }

 private:
  std::shared_ptr<FirebirdAttachment> attachment_;
  Firebird::ITransaction* transaction_ = nullptr;
};

}  // namespace quillon
