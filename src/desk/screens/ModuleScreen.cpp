#include "desk/screens/ModuleScreen.h"

#include "host/services/host_services.h"

namespace quillon {

FormPtr ModuleScreen(Form& caller, const std::string& key) {
  IModule* const module = gSession->Modules().Item("DutyworksModule");
  FormPtr screen = module != nullptr ? module->GetForm(key) : nullptr;
  if (screen) {
    screen->CallingForm = caller.Self();
  } else {
    gStd->MsgBox("The reconciliation module is not loaded.", "", "W");
  }
  return screen;
}

}  // namespace quillon
