#include "desk/screens/DeskMenu.h"

#include <algorithm>

#include "books/Right.h"
#include "desk/services/Users.h"
#include "host/forms/Runtime.h"
#include "host/services/IApp.h"

namespace quillon {

DeskMenu::DeskMenu(IModule& module, DeskSession& session, std::vector<DeskMenuLine> lines)
    : module_(module), session_(session), lines_(std::move(lines)) {
  std::erase_if(lines_, [this](const DeskMenuLine& line) {
    const std::string form = line.FormKey;
    return !form.empty() && !module_.GetForm(form);
  });
}

bool DeskMenu::IsOn(const DeskMenuLine& line) const {
  const std::string right = line.RightKey;
  return right.empty() || MayDo(session_.CommonDb(), session_.CurrentUser(), right, "N");
}

void DeskMenu::Pick(const std::string& key) {
  const auto line =
      std::find_if(lines_.begin(), lines_.end(), [&](const DeskMenuLine& known) { return known.Key == key; });
  if (line == lines_.end()) throw Refused("The menus have no line \"" + key + "\"");
  if (!IsOn(*line)) throw Refused("The user has no right to \"" + RightCaption(line->RightKey) + "\"");
  if (const std::string event = line->MenuEvent; !event.empty()) {
    bool cancel = false;
    gApp->MainWindow().MainMenuClick.Raise(event, cancel);
    return;
  }
  const std::string own = line->DeskForm;
  const FormPtr form = own.empty() ? module_.GetForm(line->FormKey) : gApp->GetForm(own);
  form->CallingForm = gApp->MainWindow().MainForm();
  if (line->Open != nullptr) {
    line->Open(form);
  } else {
    gRuntime->Show(form, line->IsModal);
  }
}

}  // namespace quillon
