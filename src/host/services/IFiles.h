#pragma once

#include <string>

namespace quillon {

/// The file service behind IStd::Files. Failures throw HostError.
class IFiles {
 public:
  IFiles() = default;
  IFiles(const IFiles&) = delete;
  IFiles& operator=(const IFiles&) = delete;
  virtual ~IFiles() = default;

  virtual std::string Combine(const std::string& folder, const std::string& name) = 0;
  virtual bool FolderExists(const std::string& path) = 0;
  virtual void CreateFolder(const std::string& path) = 0;
  virtual void CopyFile(const std::string& from, const std::string& to, int reserved) = 0;
};

}  // namespace quillon
