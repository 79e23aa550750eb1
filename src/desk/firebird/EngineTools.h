#pragma once

#include <filesystem>

#include "desk/firebird/FirebirdAttachment.h"

namespace quillon {

/// The engine's own programs for whole databases. Each runs as a process of its own, so that nothing stays in
/// the database when it is killed, and the windows paint meanwhile. All throw HostError with what the program
/// said.
class EngineTools {
 public:
  /// Writes a copy of the database as it is at this moment, while others work in it, to a file on this
  /// machine.
  static void Copy(const FirebirdAddress& from, const std::filesystem::path& into);

  /// Makes a new database of such a copy.
  static void Restore(const std::filesystem::path& from, const FirebirdAddress& into);

  /// Throws everybody out of the database and lets nobody in until BringOnline.
  static void ShutDown(const FirebirdAddress& database);
  static void BringOnline(const FirebirdAddress& database);

  /// From now on nothing can be stored in it. Nobody may have it open.
  static void MakeReadOnly(const FirebirdAddress& database);
};

}  // namespace quillon
