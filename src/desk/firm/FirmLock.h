#pragma once

#include <filesystem>

namespace quillon {

/// Keeps a firm's files to processes whose engines know of each other: those that share one folder of lock
/// files. Two engines that do not would write the same pages unseen and damage the books.
class FirmLock {
 public:
  /// Throws HostError when another user or machine has the firm's files open, or the folder cannot be
  /// written.
  explicit FirmLock(const std::filesystem::path& folder);
  FirmLock(const FirmLock&) = delete;
  FirmLock& operator=(const FirmLock&) = delete;
  ~FirmLock();

 private:
  int file_;
};

}  // namespace quillon
