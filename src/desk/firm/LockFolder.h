#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quillon {

/// The folder in which the engines of one firm keep their locks, so that no firm waits for another, with a
/// list of the programs that have been in it and have not left.
class LockFolder {
 public:
  /// The folder of the firm in a folder: in the user's cache, named by the device and number of the firm's
  /// folder.
  static LockFolder OfFirm(const std::filesystem::path& firm);

  explicit LockFolder(std::filesystem::path path) : path_(std::move(path)) {}

  const std::filesystem::path& Path() const { return path_; }

  /// Device and number of a folder; empty where there is none.
  static std::string PlaceOf(const std::filesystem::path& folder);

  /// Throws HostError when it cannot be made.
  void Make() const;

  /// Puts a new, empty one in its place, for nobody but the dead are in the old one.
  void Remake() const;

  /// Notes this process until it ends properly; a process is in one such folder for its life.
  void Enter() const;

  /// Takes the note away from a process that another program is about to take the place of.
  static void Leave();

  /// The other programs that are in it, such as "quillon-desk (process 4711)". One that was killed and not
  /// yet reaped lives no more.
  std::vector<std::string> Living() const;

  /// Whether a program was killed in it.
  bool HasDead() const;

 private:
  std::filesystem::path path_;
};

}  // namespace quillon
