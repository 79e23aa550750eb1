#pragma once

namespace quillon {

/// The codes of keys and of the Shift argument, as the forms read them.
namespace keys {

inline constexpr int kBack = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kDelete = 46;
inline constexpr int kSlash = 47;  ///< as a character
inline constexpr int kF1 = 112;
inline constexpr int kF2 = 113;
inline constexpr int kF3 = 114;
inline constexpr int kF4 = 115;
inline constexpr int kF5 = 116;
inline constexpr int kF6 = 117;
inline constexpr int kF7 = 118;
inline constexpr int kF8 = 119;
inline constexpr int kF9 = 120;
inline constexpr int kF10 = 121;
inline constexpr int kF11 = 122;
inline constexpr int kF12 = 123;

inline constexpr int kShift = 1;
inline constexpr int kCtrl = 2;
inline constexpr int kAlt = 4;

}  // namespace keys

/// The key code of a character: letters and digits are their own, what the other keys make never meets the
/// code of a function or cursor key.
constexpr int CodeOfCharacter(int character) {
  if (character >= 'a' && character <= 'z') return character - 32;
  const bool own =
      (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9') || character == ' ';
  return own || character < ' ' ? character : 0x200 + character;
}

/// A key on its way; a code set to 0 goes no further.
struct KeyEvent {
  int KeyCode = 0;
  int Shift = 0;

  bool AsksUndo() const { return KeyCode == 'Z' && Shift == keys::kCtrl; }
  bool AsksRedo() const {
    return (KeyCode == 'Y' && Shift == keys::kCtrl) ||
           (KeyCode == 'Z' && Shift == (keys::kCtrl | keys::kShift));
  }
};

}  // namespace quillon
