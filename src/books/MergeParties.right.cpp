#include "books/Right.h"

namespace quillon {

Right MergePartiesRight() { return {80, "bulk.mergeparties", "Merge Parties"}; }

}  // namespace quillon
