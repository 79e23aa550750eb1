#pragma once

#include <span>

#include "host/forms/FormKey.h"

namespace quillon {

/// The form keys of entry aids and look-ups.
std::span<const FormKey> EntryForms();

}  // namespace quillon
