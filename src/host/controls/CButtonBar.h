#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "host/controls/Control.h"

namespace quillon {

/// The strip of function-key buttons along the bottom of a screen, in the order of the keys.
class CButtonBar : public Control {
 public:
  explicit CButtonBar(Control& parent, std::string name = "BtnBar1", int index = kNoIndex)
      : Control(parent, std::move(name), index) {}

  const char* Kind() const override { return "CButtonBar"; }

  /// A button; its texts may be set later.
  class Button {
   public:
    Button(CButtonBar& bar, std::size_t place) : bar_(bar), place_(place) {}

    const std::string& Key() const { return key_; }
    const std::string& Caption() const { return caption_; }
    const std::string& Picture() const { return picture_; }
    const std::string& ToolTip() const { return toolTip_; }
    bool Enabled() const { return enabled_; }
    bool Visible() const { return visible_; }
    void SetKey(const std::string& key);
    void SetCaption(const std::string& caption);
    void SetPicture(const std::string& picture);
    void SetEnabled(bool enabled);

    /// As a press: raises ButtonPressed, whether enabled or not; the handler tests Enabled.
    void Click();

    /// Twips from the bar's left edge.
    long Left() const;

   private:
    friend class CButtonBar;

    CButtonBar& bar_;
    std::size_t place_;
    std::string key_;
    std::string caption_;
    std::string picture_;
    std::string toolTip_;
    bool enabled_ = true;
    bool visible_ = true;
  };

  /// "name,caption,icon,tool tip": the name alone leaves a free place.
  void AddButtons(std::initializer_list<const char*> specs);

  void RemoveButtons();

  /// The named buttons keep their place; names that no button has are passed over.
  void HideButtons(std::initializer_list<const char*> names);
  void DisableButtons(std::initializer_list<int> indexes);
  void EnableButtons(std::initializer_list<int> indexes);

  /// Throws SubscriptError when there is no such button.
  Button& Buttons(int index);
  Button& Buttons(const std::string& key);
  int Count() const { return static_cast<int>(buttons_.size()); }

  Event<int> ButtonPressed;

  /// The function key of a button: one that is hidden, disabled or missing does nothing, nor does any while a
  /// person cannot reach the bar.
  void PressByKey(int index);

  /// A person presses a button that he can see.
  void UserPress(int index);
  void UserPress(const std::string& key);
  State Describe() const override;

 private:
  int IndexOf(const std::string& key) const;

  std::vector<std::unique_ptr<Button>> buttons_;
};

}  // namespace quillon
