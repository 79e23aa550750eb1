#include "host/controls/ItemList.h"

#include <algorithm>

#include "host/forms/Form.h"

namespace quillon {

void ItemList::Clear() {
  items_.clear();
  listIndex_ = -1;
  ContentChanged();
}

void ItemList::AddItem(const std::string& text, std::int64_t itemData) {
  items_.push_back({text, itemData});
  ContentChanged();
}

const ItemList::Entry& ItemList::At(int item) const {
  if (item < 0 || item >= ListCount()) throw SubscriptError(Name() + " item " + std::to_string(item));
  return items_[static_cast<std::size_t>(item)];
}

const std::string& ItemList::List(int item) const { return At(item).text; }

std::int64_t ItemList::ItemData(int item) const { return At(item).data; }

void ItemList::SetListIndex(int item) {
  if (item != -1) At(item);
  listIndex_ = item;
  ContentChanged();
  if (item != -1) Click.Raise();
}

void ItemList::UserChoose(int item) {
  RequireReachable();
  if (item < 0 || item >= ListCount()) throw Refused(FullName() + " has no item " + std::to_string(item));
  if (OwnerForm().UserFocus(*this)) SetListIndex(item);
}

void ItemList::UserChoose(const std::string& text) {
  const auto same =
      std::find_if(items_.begin(), items_.end(), [&](const Entry& entry) { return entry.text == text; });
  if (same == items_.end()) throw Refused(FullName() + " has no item \"" + text + "\"");
  UserChoose(static_cast<int>(same - items_.begin()));
}

bool ItemList::HandleKey(const KeyEvent& key) {
  if (key.Shift != 0 || items_.empty()) return false;
  int item = listIndex_;
  switch (key.KeyCode) {
    case keys::kUp:
      --item;
      break;
    case keys::kDown:
      ++item;
      break;
    case keys::kHome:
      item = 0;
      break;
    case keys::kEnd:
      item = ListCount() - 1;
      break;
    default:
      return false;
  }
  if (item >= 0 && item < ListCount() && item != listIndex_) SetListIndex(item);
  return true;
}

Control::State ItemList::Describe() const {
  State state = Control::Describe();
  Array items;
  for (const Entry& entry : items_) items.emplace_back(entry.text);
  state.emplace_back("items", items);
  state.emplace_back("listindex", listIndex_);
  return state;
}

}  // namespace quillon
