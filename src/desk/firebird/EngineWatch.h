#pragma once

#include <functional>

#include "desk/firebird/FirebirdAttachment.h"

namespace quillon {

/// Watches the calls into the engine from a thread of its own. The embedded engine keeps its locks in memory
/// that several programs share: one that is killed inside a lock leaves it shut, and whoever asks for it then
/// waits for ever. A call that has stood still for ten seconds is looked into: where a small program gets an
/// answer from the database the call is just long; a server that stands still is let go, so that the call
/// fails as a lost connection; a dead lock of the embedded engine can't be helped from inside.
class EngineWatch {
 public:
  static constexpr int kSeconds = 10;
  static constexpr const char* kStuck =
      "The database engine does not answer: a program that had this firm open was killed. "
      "What was stored is safe. Close all Quillon programs on the firm and open it again.";

  /// Lasts as long as a call; calls inside it belong to it.
  class Call {
   public:
    explicit Call(const FirebirdAddress& address, Firebird::IAttachment* attachment = nullptr);
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call();

   private:
    bool isOuter_;
  };

  /// Is asked, on the watching thread, when nothing helps any more; true ends the process at once, without
  /// the engine's own leaving; false waits on. Without one the words go to the error output and the process
  /// ends.
  static void SetAsk(std::function<bool()> ask);

  /// The process is about to end: its engine has ten seconds to leave.
  static void Leave(int status);
};

}  // namespace quillon
