#include "host/forms/Form.h"

#include <algorithm>

#include "host/controls/CButton.h"
#include "host/controls/CStdButtons.h"
#include "host/controls/Menu.h"
#include "host/controls/SpreadsheetText.h"
#include "host/controls/TextBox.h"
#include "host/forms/Runtime.h"
#include "host/services/IApp.h"
#include "host/values/Date.h"
#include "host/values/Text.h"

namespace quillon {

namespace member {

Variant OfBag(const CNameValues& bag) {
  Array items;
  for (const auto& [name, value] : bag.Items()) items.emplace_back(Array{name, value});
  return items;
}

CNameValues ToBag(const Variant& value) {
  CNameValues bag;
  for (const Variant& item : value.ToArray())
    bag.SetItem(item.ToArray().at(0).ToText(), item.ToArray().at(1).ToText());
  return bag;
}

}  // namespace member

Form::Form(std::string className, Origin origin) : Surface(std::move(className)), origin_(origin) {
  BindForm(*this);
  Member("CallingForm", CallingForm);
  Member("QuillonForm", QuillonForm);
}

std::string Form::Key(const std::string& name) { return text::Lower(name); }

Control& Form::ControlAt(const std::string& name, int index) {
  gRuntime->Load(Self());
  Control* first = nullptr;
  int found = 0;
  for (Control* control : controls_) {
    if (!text::EqualNoCase(control->Name(), name)) continue;
    if (control->Index() == index) return *control;
    first = control;
    ++found;
  }
  // A lone control may be named with index 0, and a one-element array without its index.
  if (found == 1 && (index == kNoIndex || first->Index() == kNoIndex)) return *first;
  throw SubscriptError("the form " + Name() + " has no control " + name +
                       (index == kNoIndex ? "" : "(" + std::to_string(index) + ")"));
}

Variant Form::Get(const std::string& member) {
  if (const auto known = members_.find(Key(member)); known != members_.end()) return known->second.get();
  if (member.empty()) return Surface::Get(member);
  const std::size_t bracket = member.back() == ')' ? member.find('(') : std::string::npos;
  const std::string name = member.substr(0, bracket);
  for (Control* control : controls_) {
    if (!text::EqualNoCase(control->Name(), name)) continue;
    if (bracket != std::string::npos && control->Index() != ValInteger(member.substr(bracket + 1))) continue;
    gRuntime->Load(Self());
    return std::shared_ptr<Object>(Self(), control);
  }
  return Surface::Get(member);
}

void Form::Set(const std::string& member, const Variant& value) {
  if (const auto known = members_.find(Key(member)); known != members_.end()) {
    known->second.set(value);
  } else {
    Surface::Set(member, value);
  }
}

Variant Form::Call(const std::string& method, const Array& arguments) {
  const auto known = methods_.find(Key(method));
  if (known == methods_.end()) return Control::Call(method, arguments);
  return known->second(arguments);
}

void Form::MoveFocus(Control* control) {
  if (control == active_) return;
  if (Control* const left = active_; left != nullptr) {
    active_ = nullptr;
    left->LeaveFocus();
  }
  if (control == nullptr || active_ != nullptr) return;
  active_ = control;
  control->EnterFocus();
}

bool Form::UserFocus(Control& control) {
  control.RequireReachable();
  if (!control.CanTakeFocus()) return true;
  if (active_ == &control) return true;
  if (active_ != nullptr && active_->IsReachable() && !active_->MayLeave()) return false;
  // The validation may itself have sent the focus elsewhere or closed the form.
  if (!StillAlive() || !control.IsReachable()) return false;
  MoveFocus(&control);
  return active_ == &control;
}

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> order;
  for (Control* control : controls_) {
    if (control->CanTakeFocus() && control->TabStop && control->IsReachable()) order.push_back(control);
  }
  return order;
}

void Form::FocusFirst() {
  if (active_ != nullptr && active_->IsReachable()) return;
  const std::vector<Control*> order = TabOrder();
  if (!order.empty()) MoveFocus(order.front());
}

bool Form::FocusNext(bool backwards) {
  const std::vector<Control*> order = TabOrder();
  if (order.empty()) return false;
  const auto here = std::find(order.begin(), order.end(), active_);
  if (here == order.end()) return UserFocus(*(backwards ? order.back() : order.front()));
  const std::size_t at = static_cast<std::size_t>(here - order.begin());
  const std::size_t next = backwards ? (at + order.size() - 1) % order.size() : (at + 1) % order.size();
  return UserFocus(*order[next]);
}

bool Form::OfferHotKey(KeyEvent& key) {
  constexpr int kFirst = 48;
  constexpr int kLast = 105;
  const bool isHot =
      key.Shift != 0 && (key.KeyCode == keys::kTab || (key.KeyCode >= kFirst && key.KeyCode <= kLast));
  if (isHot) gApp->FormKeyDown(key.KeyCode, key.Shift, *this);
  return isHot;
}

bool Form::PressCancelButton() {
  for (Control* control : controls_) {
    if (!control->IsReachable()) continue;
    if (auto* standard = dynamic_cast<CStdButtons*>(control)) {
      standard->Buttons(CStdButtons::kExit).Click();
      return true;
    }
    if (auto* button = dynamic_cast<CButton*>(control); button != nullptr && button->IsCancel) {
      button->Press();
      return true;
    }
  }
  return false;
}

void Form::UserKey(int keyCode, int shift, int character) {
  if (!shown_) throw Refused("The form " + Name() + " is not shown");
  const FormPtr alive = Self();
  KeyEvent key{keyCode, shift};
  if (key.KeyCode == keys::kEscape && key.Shift == 0 && active_ != nullptr && active_->TakeEscape()) return;
  OnKeyDown(key);
  if (key.KeyCode == 0 || !StillAlive()) return;
  if (key.KeyCode == keys::kEscape && key.Shift == 0 && PressCancelButton()) return;
  DispatchKey(key, character);
}

void Form::DispatchKey(KeyEvent& key, int character) {
  Control* const focused = active_ != nullptr && active_->IsReachable() ? active_ : nullptr;
  if (focused != nullptr) focused->OfferKey(key);
  if (key.KeyCode == 0 || !StillAlive()) return;
  if (character != 0 && (key.Shift & (keys::kCtrl | keys::kAlt)) == 0) {
    OnKeyPress(character);
    if (character != 0 && focused != nullptr && StillAlive()) focused->OfferChar(character);
    if (character == 0 || !StillAlive()) return;
  }
  if (focused != nullptr && active_ != focused) return;
  if (focused != nullptr && focused->HandleKey(key)) return;
  if (key.KeyCode == keys::kTab && (key.Shift & ~keys::kShift) == 0) {
    FocusNext(key.Shift == keys::kShift);
  } else if (character >= keys::kSpace && focused != nullptr &&
             (key.Shift & (keys::kCtrl | keys::kAlt)) == 0) {
    focused->HandleChar(character);
  } else if (key.KeyCode == keys::kF1 && key.Shift == 0) {
    gRuntime->ShowHelp(*this, HelpContext);
  }
}

void Form::UserPaste(const std::string& text) {
  Control* const focused = active_ != nullptr && active_->IsReachable() ? active_ : nullptr;
  TextBox* const box = focused != nullptr ? focused->TypedBox() : nullptr;
  if (box != nullptr && box->MultiLine) {
    box->UserPaste(text);
    return;
  }
  if (focused != nullptr && focused->TakePaste(text)) return;
  const FormPtr alive = Self();
  const std::vector<std::string> lines = PastedLines(text);
  const bool isDate = lines.size() == 1 && !Date::Parse(lines.front()).IsEmpty();
  const std::string typed = isDate ? lines.front() : text;
  for (std::size_t at = 0; at < typed.size() && StillAlive() && gRuntime->ActiveForm() == alive;) {
    const std::size_t bytes = text::CharBytes(typed, at);
    const int character = text::CodePoint(typed.substr(at, bytes));
    if (character < keys::kSpace) return;
    UserKey(CodeOfCharacter(character), 0, character);
    at += bytes;
  }
}

void Form::MoveOnAtEnter(int& character) {
  if (character != keys::kEnter) return;
  if (ActiveControl() != nullptr && ActiveControl()->KeepsEnter()) return;
  gRuntime->SendKeys("{TAB}");
  character = 0;
}

void Form::PopupMenu(Menu& menu, long left, long top) {
  const FormPtr alive = Self();
  const int item = gRuntime->AskPopup(*this, menu, left, top);
  if (item >= 0) menu.Click.Raise(item);
}

void Form::RunLoad() {
  if (loaded_) return;
  loaded_ = true;
  OnLoad();
}

bool Form::RunQueryUnload(UnloadMode mode) {
  bool cancel = false;
  OnQueryUnload(cancel, mode);
  return !cancel;
}

void Form::EndLife() {
  CallingForm.reset();
  owner_.reset();
  loaded_ = false;
  active_ = nullptr;
}

void Form::SetShown(bool shown, bool modal) {
  shown_ = shown;
  modal_ = shown && modal;
  Visible = shown;
  PropertyChanged(Visible);
}

void Form::Forget(Control& control) {
  std::erase(controls_, &control);
  if (active_ == &control) active_ = nullptr;
}

}  // namespace quillon
