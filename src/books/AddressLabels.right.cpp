#include "books/Right.h"

namespace quillon {

Right AddressLabelsRight() { return {10, "mst.labels", "Address Labels"}; }

}  // namespace quillon
