#include "envelopes/EnvelopesForms.h"

#include "envelopes/frmEnvelopePrint.h"

namespace quillon {

std::span<const FormKey> EnvelopesForms() {
  static constexpr FormKey kForms[] = {
      // Envelopes for a party, or for all of a sheet of labels.
      {"envelopeprint", MakeForm<frmEnvelopePrint>},
  };
  return kForms;
}

}  // namespace quillon
