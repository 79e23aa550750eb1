#include "books/Right.h"

namespace quillon {

Right PurgeRight() { return {60, "bulk.purge", "Purge of Vouchers"}; }

}  // namespace quillon
