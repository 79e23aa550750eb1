#include "desk/firm/SchemaSteps.h"

namespace quillon {

/// The pages on which a ledger prints its accounts, for its index. Each connection has rows of its own, which
/// are gone with it, and a name tells the ledgers apart that one desk has open.
SchemaStep LedgerPagesSchema() {
  return {20,
          SchemaStep::Database::kYear,
          3,
          {"create global temporary table LedgerPages (Ledger varchar(40) not null, AcCode integer not null, "
           "AcHead varchar(80), Station varchar(40), Page1 integer, Page2 integer, "
           "constraint PK_LedgerPages primary key (Ledger,AcCode)) on commit preserve rows"}};
}

}  // namespace quillon
