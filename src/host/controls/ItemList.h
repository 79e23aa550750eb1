#pragma once

#include <string>
#include <vector>

#include "host/controls/Control.h"

namespace quillon {

/// The items of a combo or a list. Items count from 0; ListIndex is -1 when none is chosen.
class ItemList : public Control {
 public:
  using Control::Control;

  Event<> Click;

  virtual void Clear();
  void AddItem(const std::string& text, std::int64_t itemData = 0);
  int ListCount() const { return static_cast<int>(items_.size()); }

  /// Throws SubscriptError outside the items.
  const std::string& List(int item) const;
  std::int64_t ItemData(int item) const;

  int ListIndex() const { return listIndex_; }

  /// Raises Click each time, at an unchanged value too; -1 chooses none and raises nothing.
  virtual void SetListIndex(int item);

  bool CanTakeFocus() const override { return true; }

  /// A person chooses an item: its number or its text.
  void UserChoose(int item);
  void UserChoose(const std::string& text);
  bool HandleKey(const KeyEvent& key) override;
  State Describe() const override;

 protected:
  /// Sets the choice without a word.
  void PlaceIndex(int item) { listIndex_ = item; }

 private:
  struct Entry {
    std::string text;
    std::int64_t data;
  };

  const Entry& At(int item) const;

  std::vector<Entry> items_;
  int listIndex_ = -1;
};

}  // namespace quillon
