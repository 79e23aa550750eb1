#include "books/Right.h"

namespace quillon {

Right BulkWithoutCopyRight() { return {55, "bulk.withoutcopy", "Bulk Work without a Copy"}; }

}  // namespace quillon
