#pragma once

#include <memory>
#include <string>

namespace Firebird {
class IAttachment;
}

namespace quillon {

/// Where a database is and who opens it. The embedded engine opens a plain file name, without a password;
/// "inet://host:port/path" names a server.
struct FirebirdAddress {
  std::string Database;
  std::string User;
  std::string Password;

  /// False while nobody could miss what is lost: a firm is being made. What is written then reaches the disk
  /// when the file is next opened by one who waits.
  bool WaitsForDisk = true;

  bool IsServer() const { return Database.find("://") != std::string::npos; }
};

/// One attachment to a database, detached when the last holder lets go.
class FirebirdAttachment {
 public:
  /// Throws DbError.
  static std::shared_ptr<FirebirdAttachment> Attach(const FirebirdAddress& address);

  /// Makes a new database; throws DbError when there is one already.
  static std::shared_ptr<FirebirdAttachment> Create(const FirebirdAddress& address);

  /// Deletes a database as far as there is one.
  static void Delete(const FirebirdAddress& address) noexcept;

  FirebirdAttachment(FirebirdAddress address, Firebird::IAttachment* attachment)
      : address_(std::move(address)), attachment_(attachment) {}
  FirebirdAttachment(const FirebirdAttachment&) = delete;
  FirebirdAttachment& operator=(const FirebirdAttachment&) = delete;
  ~FirebirdAttachment();

  /// Cuts the line to a server: a client that was thrown out and then takes its leave may never be answered.
  void Cut() noexcept;

  Firebird::IAttachment* operator->() const { return attachment_; }
  Firebird::IAttachment* Handle() const { return attachment_; }

 private:
  FirebirdAddress address_;
  Firebird::IAttachment* attachment_;
};

}  // namespace quillon
