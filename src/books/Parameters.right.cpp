#include "books/Right.h"

namespace quillon {

Right ParametersRight() { return {90, "firm.parameters", "Parameters of the Firm"}; }

}  // namespace quillon
