#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "host/values/Font.h"
#include "host/values/Variant.h"

namespace quillon {

class Control;

/// A named value of a control that tells its control when it changes.
class PropertyBase {
 public:
  PropertyBase(Control& owner, const char* name);
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;
  virtual ~PropertyBase() = default;

  const char* Name() const { return name_; }
  virtual Variant Value() const = 0;
  virtual void Assign(const Variant& value) = 0;

 protected:
  void Notify();

 private:
  Control& owner_;
  const char* name_;
};

namespace property {

inline Variant ToVariant(const std::string& value) { return value; }
inline Variant ToVariant(bool value) { return value; }
inline Variant ToVariant(int value) { return value; }
inline Variant ToVariant(long value) { return value; }
Variant ToVariant(const Font& value);

/// A text that is none throws HostError, which tells it.
std::int64_t WholeNumber(const Variant& value);
bool Flag(const Variant& value);
void FromVariant(const Variant& value, std::string& out);
void FromVariant(const Variant& value, bool& out);
void FromVariant(const Variant& value, int& out);
void FromVariant(const Variant& value, long& out);
void FromVariant(const Variant& value, Font& out);

}  // namespace property

/// Notifies on change only.
template <class T>
class Property : public PropertyBase {
 public:
  Property(Control& owner, const char* name, T initial = T())
      : PropertyBase(owner, name), value_(std::move(initial)) {}
  ~Property() override = default;

  Property& operator=(T value) {
    Put(std::move(value));
    return *this;
  }
  Property& operator=(const Property& other) {
    Put(other.value_);
    return *this;
  }

  const T& operator()() const { return value_; }
  operator const T&() const { return value_; }
  const T* operator->() const { return &value_; }

  friend bool operator==(const Property& a, const T& b) { return a.value_ == b; }

  Variant Value() const override { return property::ToVariant(value_); }
  void Assign(const Variant& value) override {
    T converted{};
    property::FromVariant(value, converted);
    Put(std::move(converted));
  }

  /// Sets the value without a word to the control.
  void PutSilently(T value) { value_ = std::move(value); }

 private:
  void Put(T value) {
    if (value_ == value) return;
    value_ = std::move(value);
    Notify();
  }

  T value_;
};

/// A text that joins with others as plain strings do.
class TextProperty : public Property<std::string> {
 public:
  using Property<std::string>::Property;
  TextProperty& operator=(std::string value) {
    Property<std::string>::operator=(std::move(value));
    return *this;
  }
  TextProperty& operator=(const TextProperty& other) = default;

  friend std::string operator+(const TextProperty& a, std::string_view b) { return a() + std::string(b); }
  friend std::string operator+(std::string_view a, const TextProperty& b) { return std::string(a) + b(); }
};

/// A font. Setting one that the machine lacks throws MissingFontError and leaves the font as it is.
class FontProperty : public Property<Font> {
 public:
  using Property<Font>::Property;
  FontProperty& operator=(Font value) {
    Require(value);
    Property<Font>::operator=(std::move(value));
    return *this;
  }
  FontProperty& operator=(const FontProperty& other) { return *this = other(); }
  void Assign(const Variant& value) override;

 private:
  void Require(const Font& wanted) const;
};

/// What code sets is the control's own mark; what it reads is whether the user can see the control: the
/// control, all that contains it and its form are shown.
class VisibleProperty : public PropertyBase {
 public:
  VisibleProperty(Control& owner, bool initial)
      : PropertyBase(owner, "Visible"), control_(owner), own_(initial) {}

  VisibleProperty& operator=(bool visible);
  operator bool() const;
  bool Own() const { return own_; }

  Variant Value() const override { return static_cast<bool>(*this); }
  void Assign(const Variant& value) override { *this = property::Flag(value); }

 private:
  Control& control_;
  bool own_;
};

}  // namespace quillon
