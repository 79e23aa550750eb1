#include "cheques/ChequesForms.h"

#include "cheques/frmChqLeaves.h"
#include "cheques/frmChqPrint.h"
#include "cheques/frmChqRetReport.h"

namespace quillon {

std::span<const FormKey> ChequesForms() {
  static constexpr FormKey kForms[] = {
      // A voucher's cheque, its layout and its printing.
      {"chqprint", MakeForm<frmChqPrint>},
      // The register of a bank's cheque leaves.
      {"chqleaves", MakeForm<frmChqLeaves>},
      // Returned cheques of a bank account and a period.
      {"chqretreport", MakeForm<frmChqRetReport>},
  };
  return kForms;
}

}  // namespace quillon
