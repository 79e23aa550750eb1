#include "host/controls/CMStrip.h"

#include "host/forms/Form.h"
#include "host/services/IApp.h"

namespace quillon {

void CMStrip::OpenMaster() { gApp->OpenMaster(OwnerForm(), Code); }

void CMStrip::ShowDetails() { gApp->ShowAccountDetails(OwnerForm(), Code); }

void CMStrip::PropertyChanged(const PropertyBase& property) {
  if (&property == &Code) {
    // When the look-up fails the strip is blank, and the same code asks again.
    details_.clear();
    const long wanted = Code;
    Code.PutSilently(0);
    if (wanted != 0) details_ = gApp->AccountDetails(wanted);
    Code.PutSilently(wanted);
  }
  Control::PropertyChanged(property);
}

Control::State CMStrip::Describe() const {
  State state = Control::Describe();
  state.emplace_back("details", details_);
  return state;
}

}  // namespace quillon
