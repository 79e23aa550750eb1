#include "graph/GraphForms.h"

#include "graph/frmGraph.h"

namespace quillon {

std::span<const FormKey> GraphForms() {
  static constexpr FormKey kForms[] = {
      // Amounts of a period by day, month or quarter, beside other years or a second measure.
      {"graph", MakeForm<frmGraph>},
  };
  return kForms;
}

}  // namespace quillon
