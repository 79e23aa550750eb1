#include "books/Right.h"

namespace quillon {

Right BulkJournalRight() { return {54, "bulk.journal", "Journal of Bulk Work"}; }

}  // namespace quillon
