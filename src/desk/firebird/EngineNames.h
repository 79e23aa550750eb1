#pragma once

#include <string>
#include <vector>

namespace quillon {

/// How the engine is told of a database that is a file. It takes what stands before a colon for a host's
/// name, wherever it stands in a path and wherever a link leads, and it knows UTF-8 only. Files in a folder
/// of such a name go by short names, which the engine is told in its root folder together with a link to
/// theirs.
class EngineNames {
 public:
  /// Tells the engine of files that are to be opened; those that it can name need nothing. Throws HostError
  /// in plain words where it cannot be told.
  static void Tell(const std::vector<std::string>& files);

  /// Whether the engine opens the file by its path.
  static bool IsPlain(const std::string& file);

  /// What it opens the file by.
  static std::string Of(const std::string& file);
};

}  // namespace quillon
