#include "layout/LayoutBoard.h"

#include <algorithm>
#include <vector>

#include "host/controls/Colors.h"
#include "host/controls/ItemList.h"
#include "host/controls/OptionButton.h"
#include "host/controls/TextBox.h"
#include "host/services/IPrinter.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr long kWhite = 0xFFFFFF;
constexpr long kBlack = 0;
constexpr long kInchLine = 0x9696FF;
constexpr long kHalfInchLine = 0xFFC8C8;
constexpr long kEighthLine = 0xEBFFFF;
constexpr long kStep = 120;
constexpr long kSmallStep = 15;

bool IsArrow(int keyCode) { return keyCode >= keys::kLeft && keyCode <= keys::kDown; }

bool UsesArrow(Control* focused, int keyCode) {
  if (focused == nullptr) return false;
  if (const TextBox* box = focused->TypedBox(); box != nullptr) {
    return box->MultiLine || keyCode == keys::kLeft || keyCode == keys::kRight;
  }
  return dynamic_cast<ItemList*>(focused) != nullptr || dynamic_cast<OptionButton*>(focused) != nullptr;
}

/// The colour of a grid line, so many eighths of an inch behind a whole one.
long EighthColor(int eighth) { return eighth == 4 ? kHalfInchLine : kEighthLine; }

}  // namespace

LayoutBoard::LayoutBoard(Form& form, ControlArray<Label>& objects) : form_(form), objects_(objects) {}

Label* LayoutBoard::Find(const std::string& tag) {
  for (auto& [index, object] : objects_) {
    if (text::EqualNoCase(object->Tag(), tag)) return object.get();
  }
  return nullptr;
}

void LayoutBoard::Select(Label& object) {
  if (selected_ != nullptr) {
    selected_->BackColor = kWhite;
    selected_->ForeColor = kBlack;
  }
  selected_ = &object;
  object.BackColor = colors::kHighlight;
  object.ForeColor = colors::kHighlightText;
}

bool LayoutBoard::TakeKey(const KeyEvent& key, const Limits& limits) {
  const bool back = key.KeyCode == keys::kPageUp;
  if ((back || key.KeyCode == keys::kPageDown) && key.Shift == 0) return SelectNext(back);
  return IsArrow(key.KeyCode) && !UsesArrow(form_.ActiveControl(), key.KeyCode) && MoveByKey(key, limits);
}

bool LayoutBoard::SelectNext(bool back) {
  std::vector<Label*> shown;
  for (auto& [index, object] : objects_) {
    if (object->Visible) shown.push_back(object.get());
  }
  if (shown.empty()) return false;
  if (back) std::reverse(shown.begin(), shown.end());
  const auto here = std::find(shown.begin(), shown.end(), selected_);
  Select(here == shown.end() || here + 1 == shown.end() ? *shown.front() : **(here + 1));
  return true;
}

bool LayoutBoard::MoveByKey(const KeyEvent& key, const Limits& limits) {
  if (selected_ == nullptr) return false;
  const bool across = key.KeyCode == keys::kLeft || key.KeyCode == keys::kRight;
  Property<long>& place = across ? selected_->Left : selected_->Top;
  const long step = key.Shift == keys::kCtrl ? kSmallStep : kStep;
  long to = place;
  if (key.KeyCode == keys::kLeft || key.KeyCode == keys::kUp) {
    // An object that a stored layout put outside only comes back to the edge.
    to = std::max(to < 0 ? to : to - step, 0L);
  } else {
    to = std::min(to + step, across ? limits.Left : limits.Top);
  }
  place = to;
  return true;
}

void LayoutBoard::DrawGrid() {
  const long inch = static_cast<long>(IPrinter::ScaleX(1));
  const long right = form_.ScaleWidth();
  const long bottom = form_.ScaleHeight();
  form_.ClearLines();
  for (long at = 0; at <= right; at += inch) {
    form_.DrawLine({at, 0, at, bottom, kInchLine});
    for (int eighth = 1; eighth <= 8; ++eighth) {
      const long thin = at + inch * eighth / 8;
      form_.DrawLine({thin, 0, thin, bottom, EighthColor(eighth)});
    }
  }
  for (long at = 0; at <= bottom; at += inch) {
    form_.DrawLine({0, at, right, at, kInchLine});
    for (int eighth = 1; eighth <= 8; ++eighth) {
      const long thin = at + inch * eighth / 8;
      form_.DrawLine({0, thin, right, thin, EighthColor(eighth)});
    }
  }
}

}  // namespace quillon
