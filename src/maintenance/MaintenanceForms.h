#pragma once

#include <span>

#include "host/forms/FormKey.h"

namespace quillon {

/// The form keys of bulk maintenance.
std::span<const FormKey> MaintenanceForms();

}  // namespace quillon
