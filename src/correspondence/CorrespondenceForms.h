#pragma once

#include <span>

#include "host/forms/FormKey.h"

namespace quillon {

/// The form keys of labels and letters.
std::span<const FormKey> CorrespondenceForms();

}  // namespace quillon
