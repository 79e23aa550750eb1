#pragma once

#include <string>

namespace quillon {

/// A key as a script names it, as the forms see it.
struct ScriptKey {
  int KeyCode = 0;
  int Shift = 0;
  int Character = 0;  ///< 0 when it makes none
};

/// "F1" … "F12", "Enter", "Esc", "Tab", "Up", "PgDn", "Home", "Del" and the like, or one character; `shift`
/// joins "shift", "ctrl" and "alt" by "+". Throws HostError for a name that no key has.
ScriptKey KeyOf(const std::string& name, const std::string& shift);

}  // namespace quillon
