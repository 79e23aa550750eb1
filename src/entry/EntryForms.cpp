#include "entry/EntryForms.h"

#include "entry/frmAcFilter.h"
#include "entry/frmFilterZoomOld.h"
#include "entry/frmPeakBalances.h"

namespace quillon {

std::span<const FormKey> EntryForms() {
  static constexpr FormKey kForms[] = {
      // The largest and smallest balances of an account.
      {"peakbalances", MakeForm<frmPeakBalances>},
      // A statement of account is narrowed to some of its entries.
      {"acfilter", MakeForm<frmAcFilter>},
      // The zoom of a book or ledger is narrowed.
      {"filterzoomold", MakeForm<frmFilterZoomOld>},
  };
  return kForms;
}

}  // namespace quillon
