#pragma once

#include <memory>
#include <string>

class QFile;

namespace quillon {

/// A file in the making: written under a hidden name and named STEM-1.EXT, STEM-2.EXT … when it is whole, so
/// that a failed job leaves nothing half, and an earlier file is never overwritten.
class OutputFile {
 public:
  /// Opens the file; makes the folder when it is missing. Throws HostError.
  OutputFile(const std::string& folder, std::string stem, std::string extension);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  /// Removes an unfinished file.
  ~OutputFile();

  QFile& Device() { return *file_; }

  /// Gives the file its name and tells it with its folder. Throws HostError when something was not written.
  std::string Finish();

 private:
  std::string folder_;
  std::string stem_;
  std::string extension_;
  std::unique_ptr<QFile> file_;
};

}  // namespace quillon
