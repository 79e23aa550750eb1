#pragma once

#include <span>

#include "host/forms/FormKey.h"

namespace quillon {

/// The form keys of the graph.
std::span<const FormKey> GraphForms();

}  // namespace quillon
