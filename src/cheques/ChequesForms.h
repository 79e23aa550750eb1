#pragma once

#include <span>

#include "host/forms/FormKey.h"

namespace quillon {

/// The form keys of cheques.
std::span<const FormKey> ChequesForms();

}  // namespace quillon
