#include "host/controls/Control.h"

#include <algorithm>

#include "host/controls/TextBox.h"
#include "host/forms/Form.h"
#include "host/forms/Runtime.h"
#include "host/values/Text.h"

namespace quillon {

PropertyBase::PropertyBase(Control& owner, const char* name) : owner_(owner), name_(name) {
  owner.properties_.push_back(this);
}

void PropertyBase::Notify() { owner_.PropertyChanged(*this); }

namespace property {

Variant ToVariant(const Font& value) {
  return Array{value.Name, value.Size, value.Bold, value.Italic, value.Underline};
}

void FromVariant(const Variant& value, std::string& out) { out = value.ToText(); }

std::int64_t WholeNumber(const Variant& value) {
  if (value.Is<std::string>() && !value.IsNumeric()) throw HostError("This is no number: " + value.ToText());
  return value.ToInteger();
}

bool Flag(const Variant& value) {
  if (value.Is<std::string>() && !value.IsNumeric()) {
    const std::string text = value.ToText();
    if (!text::EqualNoCase(text, "true") && !text::EqualNoCase(text, "false")) {
      throw HostError("This is neither true nor false: " + text);
    }
  }
  return value.ToFlag();
}

void FromVariant(const Variant& value, bool& out) { out = Flag(value); }

void FromVariant(const Variant& value, int& out) {
  const std::int64_t wide = WholeNumber(value);
  if (wide > INT32_MAX || wide < INT32_MIN) throw OverflowError();
  out = static_cast<int>(wide);
}

void FromVariant(const Variant& value, long& out) { out = WholeNumber(value); }

void FromVariant(const Variant& value, Font& out) {
  const Array& parts = value.ToArray();
  if (parts.size() != 5) throw HostError("A font is given as name, size, bold, italic and underline");
  out = {parts[0].ToText(), parts[1].ToDouble(), parts[2].ToFlag(), parts[3].ToFlag(), parts[4].ToFlag()};
}

}  // namespace property

void FontProperty::Assign(const Variant& value) {
  Font font;
  property::FromVariant(value, font);
  *this = font;
}

void FontProperty::Require(const Font& wanted) const {
  if (gRuntime != nullptr && wanted.Name != (*this)().Name) gRuntime->RequireFont(wanted.Name);
}

VisibleProperty& VisibleProperty::operator=(bool visible) {
  if (own_ != visible) {
    own_ = visible;
    Notify();
  }
  return *this;
}

VisibleProperty::operator bool() const { return control_.IsShown(); }

Control::Control(Control& parent, std::string name, int index, bool listed)
    : name_(std::move(name)), index_(index), parent_(&parent), form_(parent.form_), listed_(listed) {
  parent.children_.push_back(this);
  if (listed_) form_->List(*this);
}

Control::Control(std::string name) : name_(std::move(name)) {}

Control::~Control() {
  if (parent_ == nullptr) return;
  std::erase(parent_->children_, this);
  form_->Forget(*this);
}

void Control::Move(long left, long top, long width, long height) {
  Left = left;
  Top = top;
  Width = width;
  Height = height;
}

void Control::SetFocus() {
  if (IsReachable()) form_->MoveFocus(this);
}

bool Control::HasFocus() const { return form_->ActiveControl() == this; }

bool Control::IsShown() const { return Visible.Own() && parent_->IsShown(); }

bool Control::IsReachable() const {
  if (!IsShown()) return false;
  for (const Control* control = this; control != nullptr; control = control->parent_) {
    if (!control->Enabled()) return false;
  }
  return true;
}

std::string Control::FullName() const {
  return index_ == kNoIndex ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::RequireReachable() const {
  if (!form_->IsShownToUser()) throw Refused("The form " + form_->Name() + " is not shown");
  if (!IsShown()) throw Refused(FullName() + " is hidden");
  if (!IsReachable()) throw Refused(FullName() + " is disabled");
  if (gRuntime->IsCovered(*form_)) throw Refused("The form " + form_->Name() + " is covered by another one");
}

bool Control::HandleKey(const KeyEvent&) { return false; }

void Control::HandleChar(int) {}

bool Control::MayLeave() {
  bool cancel = false;
  Validate.Raise(cancel);
  return !cancel;
}

bool Control::TakeEscape() {
  const TextBox* const box = TypedBox();
  return box != nullptr && box->Companion != nullptr && box->Companion->CompanionEscape();
}

void Control::UserClick() { throw Refused(FullName() + " cannot be clicked"); }

void Control::UserDoubleClick() { throw Refused(FullName() + " cannot be double-clicked"); }

Control::State Control::Describe() const {
  State state{{"name", name_}, {"kind", Kind()}, {"index", index_}};
  for (const PropertyBase* property : properties_) {
    state.emplace_back(text::Lower(property->Name()), property->Value());
  }
  return state;
}

Control::Corner Control::CornerOnForm() const {
  Corner corner;
  for (const Control* control = this; control->parent_ != nullptr; control = control->parent_) {
    corner.left += control->Left;
    corner.top += control->Top;
  }
  return corner;
}

std::shared_ptr<Object> Control::Inner(const std::string& name) {
  std::shared_ptr<Object> inner = Get(name).ToObject();
  if (!inner) throw HostError("There is no control " + name);
  return inner;
}

Variant Control::Get(const std::string& member) {
  if (const std::size_t dot = member.find('.'); dot != std::string::npos) {
    return Inner(member.substr(0, dot))->Get(member.substr(dot + 1));
  }
  for (const PropertyBase* property : properties_) {
    if (text::EqualNoCase(property->Name(), member)) return property->Value();
  }
  for (Control* child : children_) {
    if (!child->listed_ && text::EqualNoCase(child->Name(), member)) {
      return std::shared_ptr<Object>(form_->Self(), child);
    }
  }
  return Object::Get(member);
}

void Control::Set(const std::string& member, const Variant& value) {
  if (const std::size_t dot = member.find('.'); dot != std::string::npos) {
    Inner(member.substr(0, dot))->Set(member.substr(dot + 1), value);
    return;
  }
  for (PropertyBase* property : properties_) {
    if (text::EqualNoCase(property->Name(), member)) {
      property->Assign(value);
      return;
    }
  }
  Object::Set(member, value);
}

void Control::ReleaseHeavy() {
  for (Control* child : children_) child->ReleaseHeavy();
}

void Control::AddListener(IControlListener& listener) { listeners_.push_back(&listener); }

void Control::RemoveListener(IControlListener& listener) { std::erase(listeners_, &listener); }

void Control::PropertyChanged(const PropertyBase& property) { Tell(&property); }

void Control::ContentChanged() { Tell(nullptr); }

void Control::Tell(const PropertyBase* property) {
  if (listeners_.empty()) return;
  const std::vector<IControlListener*> listeners = listeners_;
  for (IControlListener* listener : listeners) {
    const bool stays = std::find(listeners_.begin(), listeners_.end(), listener) != listeners_.end();
    if (stays) listener->ControlChanged(*this, property);
  }
}

}  // namespace quillon
