#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/controls/Control.h"

namespace quillon {

/// Controls of one kind under one name, told apart by index; indexes may have gaps.
template <class T>
class ControlArray {
 public:
  ControlArray(Control& parent, const std::string& name, const std::vector<int>& indexes) {
    for (const int index : indexes) items_.emplace(index, std::make_unique<T>(parent, name, index));
  }

  /// Those of several containers.
  ControlArray(const std::string& name,
               const std::vector<std::pair<Control*, std::vector<int>>>& containers) {
    for (const auto& [parent, indexes] : containers) {
      for (const int index : indexes) items_.emplace(index, std::make_unique<T>(*parent, name, index));
    }
  }

  /// Throws SubscriptError for an index in a gap.
  T& operator()(int index) {
    const auto item = items_.find(index);
    if (item == items_.end()) throw SubscriptError(std::to_string(index));
    return *item->second;
  }

  int Count() const { return static_cast<int>(items_.size()); }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }

 private:
  std::map<int, std::unique_ptr<T>> items_;
};

}  // namespace quillon
