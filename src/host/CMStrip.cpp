#include "host/CMStrip.h"

#include "host/Form.h"
#include "host/IApp.h"

namespace quillon {

void CMStrip::OpenMaster() { gApp->OpenMaster(OwnerForm(), Code); }

void CMStrip::ShowDetails() { gApp->ShowAccountDetails(OwnerForm(), Code); }

void CMStrip::PropertyChanged(const PropertyBase& property) {
  if (&property == &Code) details_ = Code() == 0 ? "" : gApp->AccountDetails(Code);
  Control::PropertyChanged(property);
}

Control::State CMStrip::Describe() const {
  State state = Control::Describe();
  state.emplace_back("details", details_);
  return state;
}

}  // namespace quillon
