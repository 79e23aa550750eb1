#pragma once

#include "host/controls/TextBox.h"

namespace quillon {

/// A labelled input field. The text lives in the inner box.
class CTextPlus : public Control {
 public:
  CTextPlus(Control& parent, std::string name, int index = kNoIndex);

  const char* Kind() const override { return "CTextPlus"; }

  /// The inner text box.
  quillon::TextBox TextBox;

  /// The inner box's own, under the field's name.
  TextProperty& Text = TextBox.Text;
  Property<bool>& Locked = TextBox.Locked;
  Property<bool>& TextNumericOnly = TextBox.NumericOnly;
  Property<bool>& AllowDecimalPoints = TextBox.AllowDecimalPoints;

  TextProperty Caption{*this, "Caption"};
  Property<long> LabelWidth{*this, "LabelWidth", 1200};

  /// The name under which settings and checks address the field.
  TextProperty FieldName{*this, "FieldName"};
  Property<bool> DateMode{*this, "DateMode"};
  Property<bool> PickButton{*this, "PickButton"};

  /// Stops the form's Enter while a selection grid is open on the field.
  Property<bool> SuppressEnter{*this, "SuppressEnter"};

  Event<> ButtonClick;
  Event<>& Change = TextBox.Change;

  bool CanTakeFocus() const override { return true; }
  bool KeepsEnter() const override { return SuppressEnter || TextBox.KeepsEnter(); }
  quillon::TextBox* TypedBox() override { return &TextBox; }
  bool HandleKey(const KeyEvent& key) override;
  void HandleChar(int character) override { TextBox.HandleChar(character); }
  void EnterFocus() override;
  void LeaveFocus() override;

  void UserType(const std::string& text);
  void UserPickButton();
  State Describe() const override;
  Variant Get(const std::string& member) override;
  void Set(const std::string& member, const Variant& value) override;
};

}  // namespace quillon
