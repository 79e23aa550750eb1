#pragma once

#include <vector>

#include "host/controls/ItemList.h"

namespace quillon {

/// A list of items, each with a check box where CheckBoxes is set.
class ListBox : public ItemList {
 public:
  using ItemList::ItemList;

  const char* Kind() const override { return "ListBox"; }

  Property<bool> CheckBoxes{*this, "CheckBoxes"};
  Event<int> ItemCheck;

  void Clear() override;
  bool Selected(int item) const;
  void SetSelected(int item, bool selected);
  int SelCount() const;

  void UserCheck(int item, bool selected);
  bool HandleKey(const KeyEvent& key) override;
  State Describe() const override;

 private:
  std::vector<bool> selected_;
};

}  // namespace quillon
