#pragma once

#include <filesystem>

namespace Firebird {
class IMaster;
}

namespace quillon {

/// The Firebird client of this process and the surroundings of its embedded engine.
class FirebirdEngine {
 public:
  /// Makes the engine's root folder, through which several processes share a database, and names it in the
  /// environment. An empty path means quillon/firebird in the user's cache folder. Only the first call acts;
  /// it must come before the first attachment. An environment that names FIREBIRD already is left as it is.
  /// Throws HostError when the folder cannot be made.
  static void Prepare(const std::filesystem::path& root = {});

  /// The root folder in use.
  static std::filesystem::path Root();

  /// Makes a root folder with a `firebird.conf` of these settings and links to the installed package's parts.
  static void MakeRoot(const std::filesystem::path& root, const std::string& settings);

  /// The client library's chief interface; prepares the surroundings first.
  static Firebird::IMaster& Master();
};

}  // namespace quillon
