#include "books/Right.h"

namespace quillon {

Right EnvelopesRight() { return {20, "mst.envelopes", "Envelopes"}; }

}  // namespace quillon
