#include "books/Right.h"

namespace quillon {

Right ReconciliationRight() { return {40, "acst.reconciliation", "Bank Reconciliation"}; }

}  // namespace quillon
