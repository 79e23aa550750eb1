#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

class Object;
class Variant;

using Array = std::vector<Variant>;

/// A tagged value. Empty is a value that nobody set and counts as 0 or ""; null is a database null.
class Variant {
 public:
  Variant() = default;
  Variant(bool flag) : value_(flag) {}
  Variant(int number) : value_(static_cast<std::int64_t>(number)) {}
  Variant(long number) : value_(static_cast<std::int64_t>(number)) {}
  Variant(long long number) : value_(static_cast<std::int64_t>(number)) {}
  Variant(double number) : value_(number) {}
  Variant(Amount amount) : value_(amount) {}
  Variant(Date date) : value_(date) {}
  Variant(const char* text) : value_(std::string(text)) {}
  Variant(std::string text) : value_(std::move(text)) {}
  Variant(Array items) : value_(std::make_shared<Array>(std::move(items))) {}
  Variant(std::shared_ptr<Object> object) : value_(std::move(object)) {}

  static Variant Null() {
    Variant null;
    null.value_ = NullTag{};
    return null;
  }

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }
  bool IsNull() const { return std::holds_alternative<NullTag>(value_); }
  template <class T>
  bool Is() const {
    return std::holds_alternative<T>(value_);
  }
  template <class T>
  const T& As() const {
    return std::get<T>(value_);
  }

  /// True for a number, a flag, nothing at all, and a text that is blank or from end to end a number.
  bool IsNumeric() const;

  /// Numbers: texts by Val, flags as -1 and 0, empty and null as 0. Anything else throws HostError.
  std::int64_t ToInteger() const;
  double ToDouble() const;
  Amount ToAmount() const;
  bool ToFlag() const;

  /// Empty and null give an empty date; a text is read as Date::Parse does.
  Date ToDate() const;

  /// A date as "dd-MMM-yyyy", a flag as "True" or "False", a number as plain decimal text.
  std::string ToText() const;

  /// Nothing when the value is no object.
  std::shared_ptr<Object> ToObject() const;
  const Array& ToArray() const;

 private:
  struct NullTag {};

  std::variant<std::monostate, NullTag, bool, std::int64_t, double, Amount, Date, std::string,
               std::shared_ptr<Array>, std::shared_ptr<Object>>
      value_;
};

/// What is reached late, by name: forms, controls, year objects, small records. Names ignore case.
class Object {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

  /// Throws HostError for a name that the object does not carry.
  virtual Variant Get(const std::string& member);
  virtual void Set(const std::string& member, const Variant& value);
  virtual Variant Call(const std::string& method, const Array& arguments);
};

}  // namespace quillon
