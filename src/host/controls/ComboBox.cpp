#include "host/controls/ComboBox.h"

#include "host/forms/Form.h"

namespace quillon {

std::string ComboBox::Text() const { return ListIndex() >= 0 ? List(ListIndex()) : typed_; }

void ComboBox::SetText(const std::string& text) {
  if (text == Text()) return;
  PlaceIndex(-1);
  typed_ = text;
  ContentChanged();
  Change.Raise();
}

void ComboBox::SetListIndex(int item) {
  typed_.clear();
  ItemList::SetListIndex(item);
}

void ComboBox::UserType(const std::string& text) {
  RequireReachable();
  if (!Editable) throw Refused(FullName() + " takes only its items");
  if (OwnerForm().UserFocus(*this)) SetText(text);
}

Control::State ComboBox::Describe() const {
  State state = ItemList::Describe();
  state.emplace_back("text", Text());
  return state;
}

}  // namespace quillon
