#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "host/controls/Surface.h"
#include "host/data/CNameValues.h"

namespace quillon {

class FinYear;
class Form;
class Menu;
using FormPtr = std::shared_ptr<Form>;

/// Why a form is asked to unload.
enum class UnloadMode { CloseBox = 0, Code = 1 };

/// A screen or a dialog. The object exists before it is loaded; unloading does not destroy it, its members
/// stay readable until the last holder lets go. Late callers reach public members and methods by name.
class Form : public Surface, public std::enable_shared_from_this<Form> {
 public:
  /// Whose form it is: the runtime's list of a module's forms holds only its own.
  enum class Origin { Module, Desk };

  explicit Form(std::string className, Origin origin = Origin::Module);
  ~Form() override = default;

  const char* Kind() const override { return "Form"; }
  Origin FormOrigin() const { return origin_; }

  TextProperty Caption{*this, "Caption"};

  /// What F1 tells of the form where it does not answer the key itself; 0 is its keys.
  Property<int> HelpContext{*this, "HelpContextID"};

  /// The form or host window that opened this one, or nothing. Cleared at Unload.
  FormPtr CallingForm;

  /// Whether it stands on its caller: it took rows from there or stores into them, so that the caller keeps
  /// those rows while this form is open.
  virtual bool StandsOnCaller() const { return false; }

  /// The form that this one was shown for; it goes with it. Nothing for a window of its own.
  FormPtr Owner() const { return owner_.lock(); }

  /// The host's handle of the form; nothing until gApp->RegisterForm.
  std::shared_ptr<Object> QuillonForm;

  bool IsLoaded() const { return loaded_; }
  bool IsShownToUser() const { return shown_; }
  bool IsModal() const { return modal_; }

  /// Loads the form when needed; a control of that name and array index, or SubscriptError.
  Control& ControlAt(const std::string& name, int index = kNoIndex);
  const std::vector<Control*>& Controls() const { return controls_; }

  /// Public members first, then controls (as objects), then the form's own properties. Touching a control
  /// loads. "Lbl(2)" names a control of an array.
  Variant Get(const std::string& member) override;
  void Set(const std::string& member, const Variant& value) override;
  Variant Call(const std::string& method, const Array& arguments) override;

  /// Whether Get knows a public member of that name, and Call a method.
  bool HasMember(const std::string& name) const { return members_.contains(Key(name)); }
  bool Offers(const std::string& method) const { return methods_.contains(Key(method)); }

  Control* ActiveControl() const { return active_; }

  /// Code moves the focus: nobody is asked. Nothing takes it away.
  void MoveFocus(Control* control);

  /// A person moves the focus: the control that is left may refuse. True when it arrived.
  bool UserFocus(Control& control);
  void FocusFirst();
  bool FocusNext(bool backwards);

  /// A key as a person presses it; `character` is its Unicode value, 0 when it makes none.
  void UserKey(int keyCode, int shift, int character);

  /// A person pastes a text: whole into a box of several lines, down a column of a grid whose cells are
  /// edited, elsewhere its first line as if typed.
  void UserPaste(const std::string& text);

  /// Shows the menu and runs the chosen item's Click.
  void PopupMenu(Menu& menu, long left, long top);

  FormPtr Self() { return shared_from_this(); }

  /// A dialog that the runtime draws itself asks its user here in place of being loaded and shown, and says
  /// true.
  virtual bool AskInstead() { return false; }

  // For the runtime, which alone carries a form through its life.
  void RunLoad();
  void RunActivate() { OnActivate(); }
  bool RunQueryUnload(UnloadMode mode);
  void RunUnload() { OnUnload(); }
  void EndLife();
  void SetShown(bool shown, bool modal);
  void SetOwner(const FormPtr& owner) { owner_ = owner; }

  // For the controls.
  void List(Control& control) { controls_.push_back(&control); }
  void Forget(Control& control);

 protected:
  virtual void OnLoad() {}
  virtual void OnActivate() {}
  virtual void OnQueryUnload(bool& /*cancel*/, UnloadMode) {}
  virtual void OnUnload() {}
  virtual void OnKeyDown(KeyEvent& /*key*/) {}
  virtual void OnKeyPress(int& /*character*/) {}

  bool IsShown() const override { return shown_; }

  /// Enter moves on to the next field, unless the focus is where Enter means something else.
  void MoveOnAtEnter(int& character);

  /// Offers the host a key that belongs to it: Tab, letters and digits while Shift, Ctrl or Alt is held. True
  /// when it is one.
  bool OfferHotKey(KeyEvent& key);

  /// Registers a public member under its name. Kinds: flags, whole numbers, Amount, Date, text, forms, year
  /// objects and other objects, bags of named values.
  template <class T>
  void Member(const std::string& name, T& value);

  using MethodBody = std::function<Variant(const Array&)>;
  void Method(const std::string& name, MethodBody body) { methods_[Key(name)] = std::move(body); }

  /// Registers a routine of the form as a method. A late call with fewer arguments, or with one that is not
  /// of its kind, is refused with a HostError.
  template <class T, class Result, class... Arguments>
  void Routine(const std::string& name, Result (T::*body)(Arguments...));

 private:
  struct Binding {
    std::function<Variant()> get;
    std::function<void(const Variant&)> set;
  };

  static std::string Key(const std::string& name);
  bool PressCancelButton();
  std::vector<Control*> TabOrder() const;
  void DispatchKey(KeyEvent& key, int character);
  bool StillAlive() const { return loaded_ && shown_; }

  Origin origin_;
  bool loaded_ = false;
  bool shown_ = false;
  bool modal_ = false;
  Control* active_ = nullptr;
  std::weak_ptr<Form> owner_;
  std::vector<Control*> controls_;
  std::map<std::string, Binding> members_;
  std::map<std::string, MethodBody> methods_;
};

namespace member {

template <class T>
struct IsSharedPtr : std::false_type {};
template <class T>
struct IsSharedPtr<std::shared_ptr<T>> : std::true_type {};

Variant OfBag(const CNameValues& bag);
CNameValues ToBag(const Variant& value);

template <class T>
void Assign(T& target, const Variant& value) {
  if constexpr (IsSharedPtr<T>::value) {
    const std::shared_ptr<Object> object = value.ToObject();
    auto typed = std::dynamic_pointer_cast<typename T::element_type>(object);
    const bool none = value.IsEmpty() || value.IsNull() || value.Is<std::shared_ptr<Object>>();
    if (!none) throw HostError("A form or another object is wanted here");
    if (object && !typed) throw HostError("Type mismatch");
    target = typed;
  } else if constexpr (std::is_same_v<T, CNameValues>) {
    target = ToBag(value);
  } else if constexpr (std::is_same_v<T, bool>) {
    target = property::Flag(value);
  } else if constexpr (std::is_same_v<T, Amount>) {
    if (value.Is<std::string>() && !value.IsNumeric()) {
      throw HostError("This is no amount: " + value.ToText());
    }
    target = value.ToAmount();
  } else if constexpr (std::is_same_v<T, Date>) {
    target = value.ToDate();
    if (target.IsEmpty() && !value.ToText().empty()) throw HostError("This is no date: " + value.ToText());
  } else if constexpr (std::is_integral_v<T>) {
    const std::int64_t wide = property::WholeNumber(value);
    if (static_cast<std::int64_t>(static_cast<T>(wide)) != wide) throw OverflowError();
    target = static_cast<T>(wide);
  } else {
    target = value.ToText();
  }
}

template <class T>
Variant Read(const T& value) {
  if constexpr (IsSharedPtr<T>::value) {
    return std::static_pointer_cast<Object>(value);
  } else if constexpr (std::is_same_v<T, CNameValues>) {
    return OfBag(value);
  } else {
    return value;
  }
}

}  // namespace member

template <class T, class Result, class... Arguments>
void Form::Routine(const std::string& name, Result (T::*body)(Arguments...)) {
  Method(name, [this, name, body](const Array& given) -> Variant {
    if (given.size() < sizeof...(Arguments)) throw HostError(name + " needs more arguments");
    std::tuple<std::decay_t<Arguments>...> values;
    const auto take = [&given](auto&... value) {
      std::size_t at = 0;
      (member::Assign(value, given[at++]), ...);
    };
    std::apply(take, values);
    const auto call = [&](auto&... value) { return (static_cast<T*>(this)->*body)(value...); };
    if constexpr (std::is_void_v<Result>) {
      std::apply(call, values);
      return Variant();
    } else {
      return Variant(std::apply(call, values));
    }
  });
}

template <class T>
void Form::Member(const std::string& name, T& value) {
  members_[Key(name)] = {[&value] { return member::Read(value); },
                         [&value](const Variant& given) { member::Assign(value, given); }};
}

}  // namespace quillon
