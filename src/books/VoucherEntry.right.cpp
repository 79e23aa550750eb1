#include "books/Right.h"

namespace quillon {

Right VoucherEntryRight() { return {5, "vch.entry", "Voucher Entry"}; }

}  // namespace quillon
