#pragma once

#include "desk/driver/EventLog.h"
#include "desk/driver/JsonText.h"
#include "host/forms/Form.h"

namespace quillon {

/// The whole state of a control; of a grid only the part of the cells that the command names by "rows" (first
/// and last) and "cols" (a list), where it does.
Json StateOf(const Control& control, const Json& command);

/// A form with its title, size, focus and all its controls in short.
Json TreeOf(Form& form, EventLog& log);

}  // namespace quillon
