#pragma once

#include <string>

#include "host/controls/ControlArray.h"
#include "host/controls/Label.h"
#include "host/forms/Form.h"

namespace quillon {

/// The objects of a layout: labels at their true places over an inch grid, each known by its Tag. One of them
/// is selected, by a click or by keys, and moved by the arrow keys.
class LayoutBoard {
 public:
  /// Both must live as long as the board, which lies on the form itself.
  LayoutBoard(Form& form, ControlArray<Label>& objects);

  /// The farthest places that an object is moved to, in twips.
  struct Limits {
    long Left = 0;
    long Top = 0;
  };

  /// The object of that Tag, case ignored; nothing when there is none.
  Label* Find(const std::string& tag);

  void Select(Label& object);
  Label* Selected() const { return selected_; }

  /// Page Down and Page Up select the next and the previous object that is shown; an arrow key moves the
  /// selected one by 120 twips, with Ctrl by 15. False for any other key, for an arrow without a selected
  /// object, and for a key that the field in focus uses.
  bool TakeKey(const KeyEvent& key, const Limits& limits);

  /// The grid in inches and eighths.
  void DrawGrid();

 private:
  bool MoveByKey(const KeyEvent& key, const Limits& limits);
  bool SelectNext(bool back);

  Form& form_;
  ControlArray<Label>& objects_;
  Label* selected_ = nullptr;
};

}  // namespace quillon
