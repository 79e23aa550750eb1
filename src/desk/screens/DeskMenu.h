#pragma once

#include <string>
#include <vector>

#include "desk/screens/DeskMenuLine.h"
#include "desk/services/DeskSession.h"
#include "host/services/IModule.h"

namespace quillon {

/// The lines of the desk's menus that open screens of the module, over an open firm.
class DeskMenu {
 public:
  /// Module and session must live longer.
  DeskMenu(IModule& module, DeskSession& session, std::vector<DeskMenuLine> lines = DeskMenuLines());

  /// Those whose forms the module has, in the order of their places.
  const std::vector<DeskMenuLine>& Lines() const { return lines_; }

  /// Whether the user may open the line's screen.
  bool IsOn(const DeskMenuLine& line) const;

  /// Opens the screen of a line. Throws Refused for a key that has no line and for a line that is off.
  void Pick(const std::string& key);

 private:
  IModule& module_;
  DeskSession& session_;
  std::vector<DeskMenuLine> lines_;
};

}  // namespace quillon
