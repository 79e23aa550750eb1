#pragma once

namespace quillon::colors {

/// Colours that stand for a part of the desk's look; its theme says which colour that is.
inline constexpr long kWindowBackground = 0x80000005;
inline constexpr long kWindowText = 0x80000008;
inline constexpr long kHighlight = 0x8000000D;
inline constexpr long kHighlightText = 0x8000000E;
inline constexpr long kButtonFace = 0x8000000F;
inline constexpr long kGrayText = 0x80000011;
inline constexpr long kButtonText = 0x80000012;

}  // namespace quillon::colors
