#pragma once

#include <string>

#include "host/forms/Form.h"

namespace quillon {

/// A new screen of the module, called from a screen of the desk; nothing, and a message, when there is no
/// module.
FormPtr ModuleScreen(Form& caller, const std::string& key);

}  // namespace quillon
