#pragma once

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "host/data/CNameValues.h"
#include "host/values/Variant.h"

namespace quillon {

/// Fields of a screen that are kept as named texts, each with its kind: flags are "1" and "0", numbers plain
/// decimal texts. A name that was never stored leaves its field as it is.
class StoredFields {
 public:
  /// The field must live as long as this object. Kinds: flags, whole numbers, double, Amount, text.
  template <class T>
  void Add(const std::string& name, T& field) {
    fields_.push_back({name, [&field] { return TextOf(field); },
                       [&field](const std::string& text) { field = Of<T>(text); }});
  }

  void Save(CNameValues& bag) const {
    for (const Field& field : fields_) bag.SetItem(field.name, field.text());
  }
  void Load(const CNameValues& bag) const {
    for (const Field& field : fields_) {
      for (const auto& [name, value] : bag.Items()) {
        if (name == field.name) field.set(value);
      }
    }
  }

 private:
  struct Field {
    std::string name;
    std::function<std::string()> text;
    std::function<void(const std::string&)> set;
  };

  template <class T>
  static std::string TextOf(const T& value) {
    if constexpr (std::is_same_v<T, bool>) {
      return value ? "1" : "0";
    } else {
      return Variant(value).ToText();
    }
  }

  template <class T>
  static T Of(const std::string& text) {
    if constexpr (std::is_same_v<T, bool>) {
      return Variant(text).ToInteger() != 0;
    } else if constexpr (std::is_same_v<T, std::string>) {
      return text;
    } else if constexpr (std::is_same_v<T, Amount>) {
      return Variant(text).ToAmount();
    } else if constexpr (std::is_floating_point_v<T>) {
      return static_cast<T>(Variant(text).ToDouble());
    } else {
      return static_cast<T>(Variant(text).ToInteger());
    }
  }

  std::vector<Field> fields_;
};

}  // namespace quillon
