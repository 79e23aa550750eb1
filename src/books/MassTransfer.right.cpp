#include "books/Right.h"

namespace quillon {

Right MassTransferRight() { return {70, "bulk.masstransfer", "Mass Transfer of Entries"}; }

}  // namespace quillon
