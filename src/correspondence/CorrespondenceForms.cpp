#include "correspondence/CorrespondenceForms.h"

namespace quillon {

std::span<const FormKey> CorrespondenceForms() { return {}; }

}  // namespace quillon
