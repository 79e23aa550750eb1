#pragma once

#include "desk/firebird/FirebirdAttachment.h"

namespace quillon {

/// Tries a database in a process of its own, which may be killed when it stands still.
class EngineProbe {
 public:
  enum class Answer {
    kYes,    ///< It came in and out again.
    kError,  ///< The engine answered, with an error.
    kNone,   ///< It stood still for ten seconds, and was ended.
    kDied,   ///< The engine did not survive it.
  };

  /// Sends a small program into the database, with the locks of this process's engine. kYes also where that
  /// program is not installed beside this one.
  static Answer Ask(const FirebirdAddress& address);
};

}  // namespace quillon
