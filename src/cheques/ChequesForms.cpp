#include "cheques/ChequesForms.h"

#include "cheques/frmChqRetReport.h"

namespace quillon {

std::span<const FormKey> ChequesForms() {
  static constexpr FormKey kForms[] = {
      {"chqretreport", MakeForm<frmChqRetReport>},
  };
  return kForms;
}

}  // namespace quillon
