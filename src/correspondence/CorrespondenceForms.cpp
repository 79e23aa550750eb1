#include "correspondence/CorrespondenceForms.h"

#include "correspondence/frmAddLabelSetup.h"
#include "correspondence/frmAddressLabels.h"
#include "correspondence/frmMailMerge.h"

namespace quillon {

std::span<const FormKey> CorrespondenceForms() {
  static constexpr FormKey kForms[] = {
      // The values of a label sheet.
      {"addlabelsetup", MakeForm<frmAddLabelSetup>},
      // The chosen parties as a sheet of labels.
      {"addresslabels", MakeForm<frmAddressLabels>},
      // A letter to each of the chosen parties.
      {"mailmerge", MakeForm<frmMailMerge>},
  };
  return kForms;
}

}  // namespace quillon
