#include "reconciliation/ReconciliationForms.h"

#include "reconciliation/frmAcReconciliation.h"
#include "reconciliation/frmAcReconciliationMark.h"
#include "reconciliation/frmInttMethod.h"

namespace quillon {

std::span<const FormKey> ReconciliationForms() {
  static constexpr FormKey kForms[] = {
      // Bank reconciliation: the entries, the reconciliation statement, the pass book, the interest.
      {"acreconciliation", MakeForm<frmAcReconciliation>},
      // Reconciliation markings: the bank's paper keyed in by clear date and cheque number.
      {"acreconciliationmark", MakeForm<frmAcReconciliationMark>},
      // Interest options.
      {"inttmethod", MakeForm<frmInttMethod>},
  };
  return kForms;
}

}  // namespace quillon
