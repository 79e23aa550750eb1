#pragma once

#include "host/controls/ItemList.h"

namespace quillon {

/// A field with a list to choose from; with Editable the user may also type a text of his own.
class ComboBox : public ItemList {
 public:
  using ItemList::ItemList;

  const char* Kind() const override { return "ComboBox"; }

  Property<bool> Editable{*this, "Editable"};
  Event<> Change;

  /// The chosen item, or what was typed.
  std::string Text() const;
  void SetText(const std::string& text);
  void SetListIndex(int item) override;
  void UserType(const std::string& text);
  State Describe() const override;

 private:
  std::string typed_;
};

}  // namespace quillon
