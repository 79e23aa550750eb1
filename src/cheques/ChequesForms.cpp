#include "cheques/ChequesForms.h"

#include "cheques/frmChqRetReport.h"

namespace quillon {

std::span<const FormKey> ChequesForms() {
  static constexpr FormKey kForms[] = {
      // Returned cheques of a bank account and a period.
      {"chqretreport", MakeForm<frmChqRetReport>},
  };
  return kForms;
}

}  // namespace quillon
