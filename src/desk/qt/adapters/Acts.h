#pragma once

#include <functional>

namespace quillon {

/// What a person did in a window, on its way to the model. Nothing that a form throws gets back into the
/// toolkit's event loop.
class Acts {
 public:
  /// Runs the act by the runtime, then the keys that it queued. What a person could not do is passed over.
  static void Run(const std::function<void()>& act);

  /// Lets the windows paint in the midst of an act. What the toolkit reports meanwhile, a closed window too,
  /// is passed over: the form at work is not ready for it.
  static void LetPaint();

  /// The same for some milliseconds, while the engine works. Answers whether Esc was pressed; other keys
  /// wait.
  static bool PaintAndListen(bool mayBreak);

  /// Whether the windows paint in the midst of an act.
  static bool IsPainting();

  /// Called after each act, to bring the windows up to date.
  static void SetAfterwards(std::function<void()> afterwards);
};

}  // namespace quillon
