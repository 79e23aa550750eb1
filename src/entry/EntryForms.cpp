#include "entry/EntryForms.h"

#include "entry/frmAcFilter.h"
#include "entry/frmDataFormConfig.h"
#include "entry/frmDataFormSetup.h"
#include "entry/frmFilterZoomOld.h"
#include "entry/frmLedgerIndex.h"
#include "entry/frmNarrations.h"
#include "entry/frmPeakBalances.h"
#include "entry/frmSimilarAcHead.h"
#include "entry/frmSimilarVoucher.h"

namespace quillon {

std::span<const FormKey> EntryForms() {
  static constexpr FormKey kForms[] = {
      // The firm's standard narrations.
      {"narrations", MakeForm<frmNarrations>},
      // The largest and smallest balances of an account.
      {"peakbalances", MakeForm<frmPeakBalances>},
      // A statement of account is narrowed to some of its entries.
      {"acfilter", MakeForm<frmAcFilter>},
      // The options of a data form.
      {"dataformconfig", MakeForm<frmDataFormConfig>},
      // A data form is defined.
      {"dataformsetup", MakeForm<frmDataFormSetup>},
      // Entries that resemble the voucher at hand.
      {"similarvoucher", MakeForm<frmSimilarVoucher>},
      // The zoom of a book or ledger is narrowed.
      {"filterzoomold", MakeForm<frmFilterZoomOld>},
      // The accounts of a ledger with their pages.
      {"ledgerindex", MakeForm<frmLedgerIndex>},
      // Masters whose head resembles a new one.
      {"similarachead", MakeForm<frmSimilarAcHead>},
  };
  return kForms;
}

}  // namespace quillon
