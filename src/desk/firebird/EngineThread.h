#pragma once

#include <functional>

namespace Firebird {
class IAttachment;
}

namespace quillon {

/// Where the engine works: in the thread that calls it or, for a desk with windows, in one of its own, so
/// that the windows paint while it does. The call returns in either case only when its work is done.
class EngineThread {
 public:
  /// From now on the engine works in a thread of its own. Where that takes more than a moment the calling
  /// thread calls `wait` again and again, for some milliseconds each time; it is told whether the work may be
  /// broken off and answers whether it is to be. It is for the thread that starts it; others work for
  /// themselves.
  static void Start(std::function<bool(bool mayBreak)> wait);

  /// The thread ends; what follows is done by the caller itself.
  static void Stop();

  /// Does the work and throws what it throws. Work on an attachment may be broken off: it then fails with
  /// DbError. Throws HostError where the engine is already at work: somebody called it while the windows
  /// painted.
  static void Do(const std::function<void()>& work, Firebird::IAttachment* mayBreak = nullptr);
};

}  // namespace quillon
