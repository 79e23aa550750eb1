#pragma once

#include <QString>

namespace quillon {

/// Shows a dialog that a screen of a module may ask for, with example values, and waits for its answer:
/// "input", "font", "pick", "parties", "date", "open", "save", "print", "alert". Throws HostError for another
/// name.
void ShowModuleDialog(const QString& name);

}  // namespace quillon
