#include "maintenance/MaintenanceForms.h"

#include "maintenance/frmAcMassDelete2.h"
#include "maintenance/frmAcMassDeletion.h"
#include "maintenance/frmAcMassTransfer.h"
#include "maintenance/frmMergeParties.h"

namespace quillon {

std::span<const FormKey> MaintenanceForms() {
  static constexpr FormKey kForms[] = {
      // An account's cash vouchers in a range of dates are deleted.
      {"acmassdeletion", MakeForm<frmAcMassDeletion>},
      // An account's vouchers up to a date are deleted with their documents; its balance is kept.
      {"acmassdelete2", MakeForm<frmAcMassDelete2>},
      // Entries go over from one account to another, or one transport's documents to another's.
      {"acmasstransfer", MakeForm<frmAcMassTransfer>},
      // Accounts that were entered twice become one, in one year or in all.
      {"mergeparties", MakeForm<frmMergeParties>},
  };
  return kForms;
}

}  // namespace quillon
