#include "host/TextBox.h"

#include <algorithm>

#include "host/Text.h"

namespace quillon {

std::string TextBox::Accepted(const std::string& text) const {
  std::string kept;
  for (const char c : text) {
    const bool digit = c >= '0' && c <= '9';
    const bool point = c == '.' && AllowDecimalPoints && kept.find('.') == std::string::npos;
    const bool sign = c == '-' && kept.empty();
    const bool lineEnd = (c == '\r' || c == '\n') && !MultiLine;
    if (NumericOnly ? digit || point || sign : !lineEnd) kept += c;
  }
  return MaxLength > 0 ? text::Left(kept, static_cast<std::size_t>(MaxLength())) : kept;
}

void TextBox::UserType(const std::string& text) {
  if (Locked) throw Refused(Name() + " is locked");
  // The first key stroke has replaced what stood there, so the same text typed again is a change too.
  if (Text == text) Text = "";
  Text = Accepted(text);
  SelStart = static_cast<int>(text::Length(Text()));
  SelLength = 0;
  if (Companion != nullptr) Companion->CompanionTyped(Text);
}

void TextBox::SelectAll() {
  SelStart = 0;
  SelLength = static_cast<int>(text::Length(Text()));
}

void TextBox::EnterFocus() {
  if (!MultiLine) SelectAll();
  Control::EnterFocus();
}

void TextBox::Replace(int start, int length, const std::string& with) {
  const auto from = static_cast<std::size_t>(start);
  const std::string text =
      text::Left(Text(), from) + with + text::Mid(Text(), from + static_cast<std::size_t>(length) + 1);
  const std::string taken = Accepted(text);
  Text = taken;
  SelStart = std::min(start + static_cast<int>(text::Length(with)), static_cast<int>(text::Length(taken)));
  SelLength = 0;
  if (Companion != nullptr) Companion->CompanionTyped(Text);
}

bool TextBox::HandleKey(const KeyEvent& key) {
  if (Companion != nullptr && Companion->CompanionKey(key)) return true;
  const int end = static_cast<int>(text::Length(Text()));
  SelStart = std::clamp(SelStart, 0, end);
  SelLength = std::clamp(SelLength, 0, end - SelStart);
  const int shiftOnly = key.Shift & ~keys::kShift;
  switch (key.KeyCode) {
    case keys::kBack:
    case keys::kDelete: {
      if (Locked) return true;
      const bool back = key.KeyCode == keys::kBack;
      if (SelLength > 0) {
        Replace(SelStart, SelLength, "");
      } else if (back ? SelStart > 0 : SelStart < end) {
        Replace(back ? SelStart - 1 : SelStart, 1, "");
      }
      return true;
    }
    case keys::kHome:
      SelStart = SelLength = 0;
      return true;
    case keys::kEnd:
      SelStart = end;
      SelLength = 0;
      return true;
    case keys::kLeft:
    case keys::kRight:
      if (shiftOnly != 0) return false;
      SelStart = std::clamp(SelStart + (key.KeyCode == keys::kLeft ? -1 : 1), 0, end);
      SelLength = 0;
      return true;
    case keys::kEnter:
      if (!MultiLine || Locked) return false;
      Replace(SelStart, SelLength, "\r\n");
      return true;
    default:
      return false;
  }
}

void TextBox::HandleChar(int character) {
  if (Locked) return;
  const int end = static_cast<int>(text::Length(Text()));
  SelStart = std::clamp(SelStart, 0, end);
  Replace(SelStart, std::clamp(SelLength, 0, end - SelStart), text::OfCodePoint(character));
}

void TextBox::PropertyChanged(const PropertyBase& property) {
  Control::PropertyChanged(property);
  if (&property == &Text) Change.Raise();
}

}  // namespace quillon
