#pragma once

#include <string>

#include "host/forms/Form.h"

namespace quillon {

/// The runtime's own message box, titled by a form, which may have been unloaded. `icon` is "Q", "W", "I",
/// "E" or empty.
void TellInBox(const Form& form, const std::string& text, const std::string& icon);

/// The same with Yes and No; true for Yes.
bool AskInBox(const Form& form, const std::string& text, const std::string& icon);

}  // namespace quillon
