#include "host/controls/TextBox.h"

#include <algorithm>
#include <cmath>

#include "host/forms/Form.h"
#include "host/forms/Runtime.h"
#include "host/values/FlagHold.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// Twips that the edges and the scroll bar of a box of several lines leave to no line.
constexpr long kBesideLines = 600;
constexpr long kNarrowestLine = 300;
constexpr double kTwipsOfPoint = 20;
constexpr double kLineOfFont = 1.2;

}  // namespace

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
  RememberTyped();
  const FlagHold typing(typing_);
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
  indent_ = -1;
}

int TextBox::Caret() const { return anchor_ == SelStart + SelLength ? SelStart : SelStart + SelLength; }

void TextBox::EnterFocus() {
  if (!MultiLine) SelectAll();
  Control::EnterFocus();
}

void TextBox::RememberTyped() {
  typed_.push_back(AsItIs());
  takenBack_.clear();
}

bool TextBox::TurnTyped(std::vector<Typed>& from, std::vector<Typed>& to) {
  if (from.empty() || Locked) return true;
  to.push_back(AsItIs());
  const Typed turned = std::move(from.back());
  from.pop_back();
  const FlagHold typing(typing_);
  Text = turned.text;
  SelStart = turned.start;
  SelLength = turned.length;
  indent_ = -1;
  if (Companion != nullptr) Companion->CompanionTyped(Text);
  return true;
}

void TextBox::Replace(int start, int length, const std::string& with) {
  const FlagHold typing(typing_);
  const auto from = static_cast<std::size_t>(start);
  const std::string text =
      text::Left(Text(), from) + with + text::Mid(Text(), from + static_cast<std::size_t>(length) + 1);
  const std::string taken = Accepted(text);
  if (taken != Text()) RememberTyped();
  Text = taken;
  SelStart = std::min(start + static_cast<int>(text::Length(with)), static_cast<int>(text::Length(taken)));
  SelLength = 0;
  indent_ = -1;
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
  if (HandleClipboard(key)) return true;
  if (key.AsksUndo()) return TurnTyped(typed_, takenBack_);
  if (key.AsksRedo()) return TurnTyped(takenBack_, typed_);
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

std::vector<Control::KeyChoice> TextBox::KeyChoices() const {
  std::vector<KeyChoice> choices;
  if (!Locked && SelLength != 0) choices.push_back({"Cut", {'X', keys::kCtrl}});
  if (SelLength != 0) choices.push_back({"Copy", {'C', keys::kCtrl}});
  if (!Locked) choices.push_back({"Paste", {'V', keys::kCtrl}});
  choices.push_back({"Select All", {'A', keys::kCtrl}});
  if (!typed_.empty()) choices.push_back({"Undo", {'Z', keys::kCtrl}});
  if (!takenBack_.empty()) choices.push_back({"Redo", {'Y', keys::kCtrl}});
  return choices;
}

bool TextBox::HandleClipboard(const KeyEvent& key) {
  if (key.Shift != keys::kCtrl) return false;
  switch (key.KeyCode) {
    case 'C':
    case 'X':
      if (SelLength == 0) return true;
      gRuntime->SetClipboardText(
          text::Mid(Text(), static_cast<std::size_t>(SelStart) + 1, static_cast<std::size_t>(SelLength)));
      if (key.KeyCode == 'X' && !Locked) Replace(SelStart, SelLength, "");
      return true;
    case 'V':
      OwnerForm().UserPaste(gRuntime->ClipboardText());
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

const TextLines& TextBox::Lines() const {
  const long width = std::max(Width - kBesideLines, kNarrowestLine);
  if (!laid_ || laid_->text != Text() || laid_->font != Font() || laid_->width != width) {
    laid_ = std::make_unique<Laid>(Laid{Text(), Font(), width, TextLines(Text(), Font(), width)});
  }
  return laid_->lines;
}

int TextBox::Screenful() const {
  const long line = std::lround(Font().Size * kTwipsOfPoint * kLineOfFont);
  return static_cast<int>(std::max(Height / std::max(line, 1L) - 1, 1L));
}

/// Where the caret gets to so many lines below, above for a number below 0.
int TextBox::LineTarget(int lines, long& indent) const {
  const TextLines& laid = Lines();
  indent = indent_ >= 0 ? indent_ : laid.Indent(Caret());
  const int last = static_cast<int>(laid.All().size()) - 1;
  return laid.PlaceNear(std::clamp(laid.LineAt(Caret()) + lines, 0, last), indent);
}

bool TextBox::MoveTarget(const KeyEvent& key, int& to, long& indent) const {
  const bool back = key.KeyCode == keys::kLeft;
  const bool inLine = MultiLine && (key.Shift & keys::kCtrl) == 0;
  switch (key.KeyCode) {
    case keys::kHome:
      to = inLine ? Lines().All()[static_cast<std::size_t>(Lines().LineAt(Caret()))].start : 0;
      return true;
    case keys::kEnd:
      to = inLine ? Lines().All()[static_cast<std::size_t>(Lines().LineAt(Caret()))].end
                  : static_cast<int>(text::Length(Text()));
      return true;
    case keys::kLeft:
    case keys::kRight:
      if ((key.Shift & ~keys::kShift) != 0) return false;
      if (SelLength > 0 && (key.Shift & keys::kShift) == 0) {
        to = back ? SelStart : SelStart + SelLength;
      } else {
        to = Beside(Caret(), back);
      }
      return true;
    case keys::kUp:
    case keys::kDown:
      if (!MultiLine || (key.Shift & ~keys::kShift) != 0) return false;
      to = LineTarget(key.KeyCode == keys::kUp ? -1 : 1, indent);
      return true;
    case keys::kPageUp:
    case keys::kPageDown:
      if (!MultiLine || (key.Shift & ~keys::kShift) != 0) return false;
      to = LineTarget(key.KeyCode == keys::kPageUp ? -Screenful() : Screenful(), indent);
      return true;
    default:
      return false;
  }
}

bool TextBox::HandleMove(const KeyEvent& key) {
  int to = 0;
  long indent = -1;
  if (!MoveTarget(key, to, indent)) return false;
  const bool extends = (key.Shift & keys::kShift) != 0;
  const int fixed = Caret() == SelStart ? SelStart + SelLength : SelStart;
  Select(extends ? fixed : to, to);
  indent_ = indent;
  return true;
}

void TextBox::UserPaste(const std::string& text) {
  if (Locked) throw Refused(Name() + " is locked");
  std::string lines = text::ReplaceAll(text::ReplaceAll(text, "\r\n", "\n"), "\r", "\n");
  lines = MultiLine ? text::ReplaceAll(lines, "\n", "\r\n") : lines.substr(0, lines.find('\n'));
  const int end = static_cast<int>(text::Length(Text()));
  SelStart = std::clamp(SelStart, 0, end);
  Replace(SelStart, std::clamp(SelLength, 0, end - SelStart), lines);
}

Control::State TextBox::Describe() const {
  State state = Control::Describe();
  state.emplace_back("selstart", SelStart);
  state.emplace_back("sellength", SelLength);
  state.emplace_back("caret", Caret());
  if (MultiLine) {
    Array lines;
    for (const TextLines::Line& line : Lines().All()) lines.emplace_back(line.text);
    state.emplace_back("lines", lines);
  }
  return state;
}

void TextBox::HandleChar(int character) {
  if (Locked) return;
  const int end = static_cast<int>(text::Length(Text()));
  SelStart = std::clamp(SelStart, 0, end);
  Replace(SelStart, std::clamp(SelLength, 0, end - SelStart), text::OfCodePoint(character));
}

void TextBox::PropertyChanged(const PropertyBase& property) {
  Control::PropertyChanged(property);
  if (&property != &Text) return;
  if (!typing_) {
    typed_.clear();
    takenBack_.clear();
  }
  Change.Raise();
}

}  // namespace quillon
