#include "books/Right.h"

namespace quillon {

Right MassDeletionRight() { return {50, "bulk.massdeletion", "Mass Deletion of Entries"}; }

}  // namespace quillon
