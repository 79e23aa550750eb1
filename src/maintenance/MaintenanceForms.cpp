#include "maintenance/MaintenanceForms.h"

namespace quillon {

std::span<const FormKey> MaintenanceForms() { return {}; }

}  // namespace quillon
