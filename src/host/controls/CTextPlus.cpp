#include "host/controls/CTextPlus.h"

#include "host/forms/Form.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// Names that a late caller reads on the field and that live in the inner box.
bool IsOfTheBox(const std::string& member) {
  const std::string name = text::Lower(member);
  return name == "text" || name == "locked" || name == "textnumericonly" || name == "allowdecimalpoints";
}

}  // namespace

CTextPlus::CTextPlus(Control& parent, std::string name, int index)
    : Control(parent, std::move(name), index), TextBox(*this, "TextBox", kNoIndex, false) {}

/// The arrow down is the pick button's, where the field has one.
bool CTextPlus::HandleKey(const KeyEvent& key) {
  if (TextBox.HandleKey(key)) return true;
  if (!PickButton || key.KeyCode != keys::kDown || key.Shift != 0) return false;
  UserPickButton();
  return true;
}

void CTextPlus::EnterFocus() {
  TextBox.SelectAll();
  Control::EnterFocus();
  TextBox.GotFocus.Raise();
}

void CTextPlus::LeaveFocus() {
  Control::LeaveFocus();
  TextBox.LostFocus.Raise();
}

void CTextPlus::UserType(const std::string& text) {
  RequireReachable();
  if (Locked) throw Refused(FullName() + " is locked");
  if (OwnerForm().UserFocus(*this)) TextBox.UserType(text);
}

void CTextPlus::UserPickButton() {
  RequireReachable();
  if (!PickButton) throw Refused(FullName() + " has no pick button");
  if (OwnerForm().UserFocus(*this)) ButtonClick.Raise();
}

Control::State CTextPlus::Describe() const {
  State state = Control::Describe();
  state.emplace_back("text", Text());
  state.emplace_back("locked", Locked());
  state.emplace_back("textnumericonly", TextNumericOnly());
  state.emplace_back("allowdecimalpoints", AllowDecimalPoints());
  return state;
}

Variant CTextPlus::Get(const std::string& member) {
  return IsOfTheBox(member) ? TextBox.Get(member) : Control::Get(member);
}

void CTextPlus::Set(const std::string& member, const Variant& value) {
  if (IsOfTheBox(member)) {
    TextBox.Set(member, value);
  } else {
    Control::Set(member, value);
  }
}

}  // namespace quillon
