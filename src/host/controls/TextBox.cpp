#include "host/controls/TextBox.h"

#include <algorithm>

#include "host/values/Text.h"

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

void TextBox::SelectAll() { Select(0, static_cast<int>(text::Length(Text()))); }

void TextBox::Select(int from, int to) {
  SelStart = std::min(from, to);
  SelLength = std::abs(to - from);
  anchor_ = from;
}

int TextBox::Caret() const { return anchor_ == SelStart + SelLength ? SelStart : SelStart + SelLength; }

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
  if (key.Shift == keys::kCtrl && key.KeyCode == 'A') {
    SelectAll();
    return true;
  }
  if (HandleMove(key)) return true;
  switch (key.KeyCode) {
    case keys::kBack:
    case keys::kDelete: {
      if (Locked) return true;
      const bool back = key.KeyCode == keys::kBack;
      if (SelLength > 0) {
        Replace(SelStart, SelLength, "");
      } else {
        const int next = Beside(SelStart, back);
        Replace(std::min(SelStart, next), std::abs(next - SelStart), "");
      }
      return true;
    }
    case keys::kEnter:
      if (!MultiLine || Locked) return false;
      Replace(SelStart, SelLength, "\r\n");
      return true;
    default:
      return false;
  }
}

int TextBox::Beside(int place, bool back) const {
  const auto from = static_cast<std::size_t>(back ? std::max(place - 2, 0) : place);
  const int step = text::Mid(Text(), from + 1, 2) == "\r\n" ? 2 : 1;
  return std::clamp(back ? place - step : place + step, 0, static_cast<int>(text::Length(Text())));
}

bool TextBox::HandleMove(const KeyEvent& key) {
  const bool extends = (key.Shift & keys::kShift) != 0;
  const bool back = key.KeyCode == keys::kLeft;
  const int end = static_cast<int>(text::Length(Text()));
  int to = 0;
  switch (key.KeyCode) {
    case keys::kHome:
      break;
    case keys::kEnd:
      to = end;
      break;
    case keys::kLeft:
    case keys::kRight:
      if ((key.Shift & ~keys::kShift) != 0) return false;
      if (SelLength > 0 && !extends) {
        to = back ? SelStart : SelStart + SelLength;
      } else {
        to = Beside(Caret(), back);
      }
      break;
    default:
      return false;
  }
  const int fixed = Caret() == SelStart ? SelStart + SelLength : SelStart;
  Select(extends ? fixed : to, to);
  return true;
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
