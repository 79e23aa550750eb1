#pragma once

#include <span>

#include "host/forms/FormKey.h"

namespace quillon {

/// The form keys of bank reconciliation and interest.
std::span<const FormKey> ReconciliationForms();

}  // namespace quillon
