#include "books/Right.h"

namespace quillon {

Right MailMergeRight() { return {30, "mst.mailmerge", "Mail Merge"}; }

}  // namespace quillon
