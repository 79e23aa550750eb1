#pragma once

#include <memory>
#include <vector>

namespace quillon {

class Form;

/// A line of the desk's menus that opens a screen of the module. It is shown when the module has the form.
struct DeskMenuLine {
  const char* Menu;            ///< the menu's caption, its letter marked by &, as "&Masters"
  int Place;                   ///< its order among the lines of that menu
  const char* Key;             ///< by which a script picks it
  const char* Caption;         ///< its letter marked by &
  const char* Shortcut = "";   ///< as "Ctrl+E"; empty for none
  const char* RightKey = "";   ///< the line is off for who may not open screens on it; empty is for everybody
  const char* FormKey = "";    ///< of IModule.GetForm; empty for a line that needs no form of the module
  const char* MenuEvent = "";  ///< the main menu's event that makes the module open it; empty opens the form
  const char* DeskForm = "";   ///< the desk's own screen that is opened in place of the module's form
  void (*Open)(const std::shared_ptr<Form>& form) = nullptr;  ///< opens the form in place of a plain show
  bool IsModal = false;                                       ///< nothing else is done while the form is open
};

/// Those of all files NAME.menu.cpp, in the order of their places.
std::vector<DeskMenuLine> DeskMenuLines();

}  // namespace quillon
