#include "host/controls/CButtonBar.h"

#include <algorithm>

#include "host/forms/Form.h"
#include "host/values/Text.h"

namespace quillon {

void CButtonBar::Button::SetKey(const std::string& key) {
  key_ = key;
  bar_.ContentChanged();
}

void CButtonBar::Button::SetCaption(const std::string& caption) {
  caption_ = caption;
  bar_.ContentChanged();
}

void CButtonBar::Button::SetPicture(const std::string& picture) {
  picture_ = picture;
  bar_.ContentChanged();
}

void CButtonBar::Button::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  bar_.ContentChanged();
}

void CButtonBar::Button::Click() { bar_.ButtonPressed.Raise(static_cast<int>(place_)); }

long CButtonBar::Button::Left() const {
  const auto count = static_cast<long>(bar_.buttons_.size());
  return static_cast<long>(place_) * bar_.Width / count;
}

void CButtonBar::AddButtons(std::initializer_list<const char*> specs) {
  for (const char* spec : specs) {
    const std::vector<std::string> parts = text::Split(spec, ",");
    const auto part = [&](std::size_t i) { return i < parts.size() ? parts[i] : std::string(); };
    auto button = std::make_unique<Button>(*this, buttons_.size());
    button->key_ = part(0);
    button->caption_ = part(1);
    button->picture_ = part(2);
    button->toolTip_ = part(3);
    buttons_.push_back(std::move(button));
  }
  ContentChanged();
}

void CButtonBar::RemoveButtons() {
  buttons_.clear();
  ContentChanged();
}

void CButtonBar::HideButtons(std::initializer_list<const char*> names) {
  for (const char* name : names) {
    if (const int index = IndexOf(name); index >= 0) Buttons(index).visible_ = false;
  }
  ContentChanged();
}

void CButtonBar::DisableButtons(std::initializer_list<int> indexes) {
  for (const int index : indexes) Buttons(index).SetEnabled(false);
}

void CButtonBar::EnableButtons(std::initializer_list<int> indexes) {
  for (const int index : indexes) Buttons(index).SetEnabled(true);
}

CButtonBar::Button& CButtonBar::Buttons(int index) {
  if (index < 0 || index >= Count()) throw SubscriptError(Name() + " button " + std::to_string(index));
  return *buttons_[static_cast<std::size_t>(index)];
}

CButtonBar::Button& CButtonBar::Buttons(const std::string& key) {
  const int index = IndexOf(key);
  if (index < 0) throw SubscriptError(Name() + " button " + key);
  return Buttons(index);
}

int CButtonBar::IndexOf(const std::string& key) const {
  const auto same =
      std::find_if(buttons_.begin(), buttons_.end(), [&](const auto& b) { return b->key_ == key; });
  return same == buttons_.end() ? -1 : static_cast<int>(same - buttons_.begin());
}

void CButtonBar::PressByKey(int index) {
  if (index < 0 || index >= Count() || !IsReachable()) return;
  Button& button = Buttons(index);
  if (button.visible_ && button.enabled_) button.Click();
}

void CButtonBar::UserPress(int index) {
  RequireReachable();
  Button& button = Buttons(index);
  const std::string called =
      FullName() + " button " + (button.key_.empty() ? std::to_string(index) : button.key_);
  if (!button.visible_) throw Refused(called + " is hidden");
  if (!button.enabled_) throw Refused(called + " is disabled");
  button.Click();
}

void CButtonBar::UserPress(const std::string& key) {
  const int index = IndexOf(key);
  if (index < 0) throw Refused(FullName() + " has no button \"" + key + "\"");
  UserPress(index);
}

Control::State CButtonBar::Describe() const {
  State state = Control::Describe();
  Array buttons;
  for (const auto& button : buttons_) {
    buttons.emplace_back(Array{button->key_, button->caption_, button->picture_, button->toolTip_,
                               button->enabled_, button->visible_});
  }
  state.emplace_back("buttons", buttons);
  return state;
}

}  // namespace quillon
