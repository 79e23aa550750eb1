#pragma once

#include <span>

#include "host/forms/FormKey.h"

namespace quillon {

/// The form keys of envelopes.
std::span<const FormKey> EnvelopesForms();

}  // namespace quillon
