#pragma once

#include <filesystem>
#include <optional>

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

  /// Names the folder in which the engine keeps its locks, and answers the one in use: an engine reads it
  /// once, so the first one stays for the life of the process, as does one that the environment named at the
  /// start. An empty path means "lock" in the root folder.
  static std::filesystem::path UseLocks(const std::filesystem::path& folder);

  /// The folder of locks in use; nothing before the first one was named.
  static std::optional<std::filesystem::path> Locks();

  /// Whether the environment named the folder of locks at the start.
  static bool LocksAreGiven();

  /// The user's folder for what can be made anew.
  static std::filesystem::path UserCache();

  /// Takes the folder of locks out of the environment of a process that is to choose its own.
  static void ForgetLocks();

  /// The root folder in use.
  static std::filesystem::path Root();

  /// The folder of short names in it; a root that was not made by MakeRoot has none.
  static std::filesystem::path Names() { return Root() / "names"; }

  /// Puts a list of short names, lines of NAME = FILE, and a link to a folder there under a name of their
  /// own. Engines that have attached already see it too.
  static void PutNames(const std::filesystem::path& folder, const std::string& name, const std::string& list);

  /// Makes a root folder with a `firebird.conf` of these settings and links to the installed package's parts.
  static void MakeRoot(const std::filesystem::path& root, const std::string& settings);

  /// The client library's chief interface; prepares the surroundings first.
  static Firebird::IMaster& Master();
};

}  // namespace quillon
