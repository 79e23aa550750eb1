#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/controls/Keys.h"
#include "host/controls/Pointers.h"
#include "host/controls/Property.h"
#include "host/values/Errors.h"
#include "host/values/Event.h"

namespace quillon {

class Control;
class Form;
class TextBox;

/// Raised by a user verb for an act that a person could not do: on a control that is hidden, disabled, locked
/// or covered by a modal form.
class Refused : public HostError {
 public:
  using HostError::HostError;
};

/// What draws a control hears of each change through this.
class IControlListener {
 public:
  IControlListener() = default;
  IControlListener(const IControlListener&) = default;
  IControlListener& operator=(const IControlListener&) = default;
  virtual ~IControlListener() = default;

  /// `property` is nothing when the content changed (cells, items, buttons).
  virtual void ControlChanged(Control& control, const PropertyBase* property) = 0;
};

/// A headless control: properties, events for its form, and user verbs for the adapters and the driver.
/// Places and sizes are twips in its container; colours are 0xBBGGRR.
class Control : public Object {
  // Stands before the properties, which enter themselves here while the control is made.
  std::string name_;
  int index_ = -1;
  Control* parent_ = nullptr;
  Form* form_ = nullptr;
  bool listed_ = true;
  std::vector<Control*> children_;
  std::vector<PropertyBase*> properties_;
  std::vector<IControlListener*> listeners_;

 public:
  static constexpr long kDefaultColor = -1;
  static constexpr int kNoIndex = -1;

  /// `index` for a member of a control array. An inner control of another control is not listed in the form.
  Control(Control& parent, std::string name, int index = kNoIndex, bool listed = true);
  ~Control() override;

  const std::string& Name() const { return name_; }
  int Index() const { return index_; }

  /// Nothing for a form.
  Control* Parent() const { return parent_; }
  Form& OwnerForm() const { return *form_; }

  /// The kind's name, as the driver and the accessibility tree tell it.
  virtual const char* Kind() const = 0;

  Property<long> Left{*this, "Left"};
  Property<long> Top{*this, "Top"};
  Property<long> Width{*this, "Width", 1200};
  Property<long> Height{*this, "Height", 345};
  VisibleProperty Visible{*this, true};
  Property<bool> Enabled{*this, "Enabled", true};
  Property<long> BackColor{*this, "BackColor", kDefaultColor};
  Property<long> ForeColor{*this, "ForeColor", kDefaultColor};
  FontProperty Font{*this, "Font"};
  TextProperty Tag{*this, "Tag"};
  TextProperty ToolTipText{*this, "ToolTipText"};
  Property<bool> TabStop{*this, "TabStop", true};

  /// The shape of the mouse pointer over the control.
  Property<int> MousePointer{*this, "MousePointer", kPointerDefault};

  Event<> GotFocus;
  Event<> LostFocus;

  /// Before the focus leaves by the user's act; cancel set to true keeps it.
  Event<bool&> Validate;
  Event<KeyEvent&> KeyDown;
  Event<int&> KeyPress;

  void Move(long left, long top, long width, long height);
  void SetFocus();

  /// Where the control's top left corner lies on its form, in twips.
  struct Corner {
    long left = 0;
    long top = 0;
  };
  Corner CornerOnForm() const;
  bool HasFocus() const;

  /// Whether Tab and SetFocus may come here at all.
  virtual bool CanTakeFocus() const { return false; }
  bool IsReachable() const;

  /// True when Enter and Tab belong to the control itself.
  virtual bool KeepsEnter() const { return false; }

  /// The box that a person types into while the control has the focus, or nothing.
  virtual TextBox* TypedBox() { return nullptr; }

  /// The key is offered to the form under the control's name, before the form hears of the character that it
  /// makes.
  virtual void OfferKey(KeyEvent& key) { KeyDown.Raise(key); }

  /// The character likewise, before the control takes it.
  virtual void OfferChar(int& character) { KeyPress.Raise(character); }

  /// Esc is for what is open at the control first, before the form hears of it: a list under it, then a cell
  /// under edit. False when nothing is.
  virtual bool TakeEscape();

  /// True while a person has typed what is not stored yet: MayLeave stores it, or tells why it cannot.
  virtual bool IsInEdit() const { return false; }

  /// A text is pasted that the control deals with as a whole; false leaves it to be typed.
  virtual bool TakePaste(const std::string& /*text*/) { return false; }

  /// Forgets what is typed and not stored.
  virtual void DropEdit() {}

  /// What a key does that the form let pass; false when it means nothing to the control.
  virtual bool HandleKey(const KeyEvent& key);
  virtual void HandleChar(int character);

  /// What a menu at the control offers a person: words, and the key that does it.
  struct KeyChoice {
    std::string words;
    KeyEvent key;
  };
  virtual std::vector<KeyChoice> KeyChoices() const { return {}; }

  /// The focus comes or goes; raises GotFocus and LostFocus.
  virtual void EnterFocus() { GotFocus.Raise(); }
  virtual void LeaveFocus() { LostFocus.Raise(); }

  /// Asks whether the focus may leave by the user's act.
  virtual bool MayLeave();

  /// The user verbs' first step: throws Refused when a person could not reach the control.
  void RequireReachable() const;

  virtual void UserClick();
  virtual void UserDoubleClick();

  /// All that a driver can tell of the control beyond its name: the properties and what the kind adds.
  using State = std::vector<std::pair<std::string, Variant>>;
  virtual State Describe() const;

  /// A property, or a control inside this one; "TitleLabel.Caption" goes on in that one.
  Variant Get(const std::string& member) override;
  void Set(const std::string& member, const Variant& value) override;

  /// Lets go of what is heavy, such as the cells of a grid: the form was closed, and who closed it is done.
  virtual void ReleaseHeavy();

  void AddListener(IControlListener& listener);
  void RemoveListener(IControlListener& listener);

  /// The children in the order of their making.
  const std::vector<Control*>& Children() const { return children_; }

 protected:
  /// A form: the root of its controls.
  explicit Control(std::string name);

  friend class PropertyBase;
  friend class VisibleProperty;

  /// After a property took a new value; a kind raises its event here and passes the change on.
  virtual void PropertyChanged(const PropertyBase& property);

  /// Tells the listeners that the content changed.
  void ContentChanged();

  virtual bool IsShown() const;
  void BindForm(Form& form) { form_ = &form; }
  std::string FullName() const;

 private:
  void Tell(const PropertyBase* property);
  std::shared_ptr<Object> Inner(const std::string& name);
};

}  // namespace quillon
