#include "host/controls/ListBox.h"

#include <algorithm>

#include "host/forms/Form.h"

namespace quillon {

void ListBox::Clear() {
  selected_.clear();
  ItemList::Clear();
}

bool ListBox::Selected(int item) const {
  List(item);
  return static_cast<std::size_t>(item) < selected_.size() && selected_[static_cast<std::size_t>(item)];
}

void ListBox::SetSelected(int item, bool selected) {
  if (Selected(item) == selected) return;
  selected_.resize(static_cast<std::size_t>(ListCount()));
  selected_[static_cast<std::size_t>(item)] = selected;
  ContentChanged();
  ItemCheck.Raise(item);
}

int ListBox::SelCount() const {
  int count = 0;
  for (int i = 0; i < ListCount(); ++i) count += Selected(i) ? 1 : 0;
  return count;
}

void ListBox::UserCheck(int item, bool selected) {
  RequireReachable();
  if (item < 0 || item >= ListCount()) throw Refused(FullName() + " has no item " + std::to_string(item));
  if (OwnerForm().UserFocus(*this)) SetSelected(item, selected);
}

bool ListBox::HandleKey(const KeyEvent& key) {
  if (key.KeyCode == keys::kSpace && CheckBoxes && ListIndex() >= 0) {
    SetSelected(ListIndex(), !Selected(ListIndex()));
    return true;
  }
  return ItemList::HandleKey(key);
}

Control::State ListBox::Describe() const {
  State state = ItemList::Describe();
  Array selected;
  for (int i = 0; i < ListCount(); ++i) selected.emplace_back(Selected(i));
  state.emplace_back("selected", selected);
  return state;
}

}  // namespace quillon
