#pragma once

#include <filesystem>
#include <string>

#include "desk/firm/LockFolder.h"
#include "host/values/Errors.h"

namespace quillon {

/// The firm's files are said to be open on another machine, which may be off by now. It is asked whether they
/// shall be taken over, by the machine's name.
class OtherMachineError : public HostError {
 public:
  OtherMachineError(const std::string& message, std::string host)
      : HostError(message), host_(std::move(host)) {}
  const std::string& Host() const { return host_; }

 private:
  std::string host_;
};

/// The engine's locks of the firm stand still: a program was killed inside one. It may be tried again.
class DeadLockError : public HostError {
 public:
  using HostError::HostError;
};

/// The engine of this process has its locks in the folder of another firm: only a fresh process can open this
/// one.
class OtherFirmError : public HostError {
 public:
  using HostError::HostError;
};

/// Keeps a firm's files to processes whose engines know of each other: those of one user on one machine that
/// share one folder of locks. Two engines that do not would write the same pages unseen and damage the books.
class FirmLock {
 public:
  /// Chooses the engine's folder of locks where this process has none yet, and tries the database, a file, in
  /// it before this process does. `takeOver` names the machine whose lock is void by the user's word. Throws
  /// the errors above, and HostError when another user or machine has the firm open or the folder cannot be
  /// written.
  FirmLock(const std::filesystem::path& folder, const std::string& database,
           const std::string& takeOver = {});
  FirmLock(const FirmLock&) = delete;
  FirmLock& operator=(const FirmLock&) = delete;
  ~FirmLock();

  /// Tries another database of the firm. Throws DeadLockError.
  static void Try(const std::string& database);

  /// Whether nobody else had the firm open when this one came.
  bool WasFirst() const { return wasFirst_; }

  /// Takes the firm's own folder of locks where this process has none yet, for a firm that is being made.
  static void Choose(const std::filesystem::path& folder);

  /// Where the engine of this process keeps its locks.
  static LockFolder Folder();

  /// Whether only a fresh process can open the firm in that folder, because this one's engine is in another's
  /// locks.
  static bool NeedsFreshProcess(const std::filesystem::path& folder);

  /// Keeps all others out until Share; false, with the lock shared as before, when another process has the
  /// firm open.
  bool KeepAlone();
  void Share();

 private:
  void Begin(const std::filesystem::path& folder, const std::string& database, const std::string& takeOver);
  void Join(const std::filesystem::path& folder, const std::string& database);

  int file_;
  bool wasFirst_ = false;
};

}  // namespace quillon
