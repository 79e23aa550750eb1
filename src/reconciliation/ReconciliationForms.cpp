#include "reconciliation/ReconciliationForms.h"

#include "reconciliation/frmAcReconciliation.h"
#include "reconciliation/frmAcReconciliationMark.h"
#include "reconciliation/frmInttMethod.h"

namespace quillon {

std::span<const FormKey> ReconciliationForms() {
  static constexpr FormKey kForms[] = {
      {"acreconciliation", MakeForm<frmAcReconciliation>},
      {"acreconciliationmark", MakeForm<frmAcReconciliationMark>},
      {"inttmethod", MakeForm<frmInttMethod>},
  };
  return kForms;
}

}  // namespace quillon
