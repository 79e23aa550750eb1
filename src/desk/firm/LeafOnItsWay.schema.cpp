#include "desk/firm/SchemaSteps.h"

namespace quillon {

/// A leaf whose cheque went to a printer is neither deleted nor cancelled until somebody has said whether it
/// is printed: the question would be lost, and the same cheque printed twice.
SchemaStep LeafOnItsWaySchema() {
  const std::string refuse =
      " and exists (select 1 from ChqGoingOut g where g.LeafID=old.ID)) then exception LeafOnItsWay "
      "'Cheque No. ' || old.ChqNo || ' was sent to a printer. Open the firm anew and say whether it was printed.'; "
      "end";
  return {30,
          SchemaStep::Database::kYear,
          4,
          {"create exception LeafOnItsWay 'The cheque was sent to a printer.'",
           "create trigger LeafIsNotDeleted for ChqLeaves before delete as begin if (1=1" + refuse,
           "create trigger LeafIsNotCancelled for ChqLeaves before update as begin if (new.Cancelled='Y' and "
           "old.Cancelled is distinct from 'Y'" +
               refuse}};
}

}  // namespace quillon
