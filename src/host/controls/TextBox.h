#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/controls/Control.h"
#include "host/controls/TextLines.h"

namespace quillon {

/// A list that goes with a text box: it takes the keys that move in it, and follows what is typed.
class ITextCompanion {
 public:
  ITextCompanion() = default;
  ITextCompanion(const ITextCompanion&) = delete;
  ITextCompanion& operator=(const ITextCompanion&) = delete;
  virtual ~ITextCompanion() = default;

  virtual bool CompanionKey(const KeyEvent& key) = 0;
  virtual void CompanionTyped(const std::string& text) = 0;

  /// Esc closes what is open beside the box; false when nothing is.
  virtual bool CompanionEscape() = 0;

  /// Whether Enter would take a line of the list.
  virtual bool TakesEnter() const = 0;
};

/// A field of text. Every single-line editor is one of these: the plain box, the box of a labelled field, the
/// editor of a grid's cell.
class TextBox : public Control {
 public:
  using Control::Control;

  const char* Kind() const override { return "TextBox"; }

  TextProperty Text{*this, "Text"};
  Property<bool> Locked{*this, "Locked"};
  Property<bool> MultiLine{*this, "MultiLine"};
  Property<bool> NumericOnly{*this, "TextNumericOnly"};
  Property<bool> AllowDecimalPoints{*this, "AllowDecimalPoints"};

  /// UTF-16 units; 0 is no limit.
  Property<int> MaxLength{*this, "MaxLength"};

  /// The caret and the selection, in UTF-16 units. A length past the end stands for all of it.
  int SelStart = 0;
  int SelLength = 0;

  Event<> Change;

  /// The list that is open on the box, or nothing.
  ITextCompanion* Companion = nullptr;

  bool CanTakeFocus() const override { return true; }
  bool KeepsEnter() const override { return MultiLine || (Companion != nullptr && Companion->TakesEnter()); }
  TextBox* TypedBox() override { return this; }

  /// A person replaces the whole text; what the field does not take is dropped.
  void UserType(const std::string& text);

  /// A person pastes a text in place of the selection. A box of one line takes the first.
  void UserPaste(const std::string& text);

  std::vector<KeyChoice> KeyChoices() const override;
  bool HandleKey(const KeyEvent& key) override;
  void HandleChar(int character) override;
  void EnterFocus() override;
  void SelectAll();

  /// Selects from one place to another, in UTF-16 units; the caret stands at the second.
  void Select(int from, int to);

  /// The end of the selection that the keys move.
  int Caret() const;

  /// The lines of a box of several lines as it shows them.
  const TextLines& Lines() const;

  State Describe() const override;

 protected:
  void PropertyChanged(const PropertyBase& property) override;

 private:
  std::string Accepted(const std::string& text) const;
  void Replace(int start, int length, const std::string& with);
  bool HandleClipboard(const KeyEvent& key);
  bool HandleMove(const KeyEvent& key);
  bool MoveTarget(const KeyEvent& key, int& to, long& indent) const;
  int LineTarget(int lines, long& indent) const;
  int Screenful() const;

  /// The place before or after one character; a line's end is one.
  int Beside(int place, bool back) const;

  /// Where the selection began; counts only while it is one of the ends.
  int anchor_ = 0;

  /// How far from the left Up and Down began; below 0 when another key was the last.
  long indent_ = -1;

  /// Ctrl+Z and Ctrl+Y: what was typed since the text was last put in by code.
  struct Typed {
    std::string text;
    int start;
    int length;
  };
  Typed AsItIs() const { return {Text(), SelStart, SelLength}; }
  void RememberTyped();
  bool TurnTyped(std::vector<Typed>& from, std::vector<Typed>& to);
  std::vector<Typed> typed_;
  std::vector<Typed> takenBack_;
  bool typing_ = false;

  struct Laid {
    std::string text;
    quillon::Font font;
    long width;
    TextLines lines;
  };
  mutable std::unique_ptr<Laid> laid_;
};

}  // namespace quillon
