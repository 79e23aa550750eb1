#pragma once

namespace quillon {

/// Shapes of the mouse pointer that the forms use.
inline constexpr int kPointerDefault = 0;
inline constexpr int kPointerBusy = 11;
inline constexpr int kPointerHand = 99;

}  // namespace quillon
