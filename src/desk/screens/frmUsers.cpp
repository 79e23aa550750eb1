#include "desk/screens/frmUsers.h"

#include <algorithm>

#include "books/Right.h"
#include "desk/services/DeskSession.h"
#include "host/forms/Fields.h"
#include "host/forms/Runtime.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr char kOpen = 'N';
constexpr char kPrint = 'P';

/// The letters with one of them in or out; others stay.
std::string With(std::string letters, char letter, bool isIn) {
  std::erase(letters, letter);
  return isIn ? letters + letter : letters;
}

bool Has(const std::string& letters, char letter) { return letters.find(letter) != std::string::npos; }

std::vector<std::string> Ticks(const ListBox& open, const ListBox& print) {
  return {text::Join(TickedItems(open), "\n"), text::Join(TickedItems(print), "\n")};
}

}  // namespace

frmUsers::frmUsers()
    : DialogForm({.className = "frmUsers",
                  .caption = "Users and Rights",
                  .width = 9000,
                  .height = 7200,
                  .origin = Origin::Desk}),
      lblUser(*this, "lblUser"),
      cmbUser(*this, "cmbUser"),
      lblLevel(*this, "lblLevel"),
      cmbLevel(*this, "cmbLevel"),
      btnNew(*this, "btnNew"),
      btnDelete(*this, "btnDelete"),
      lblOpen(*this, "lblOpen"),
      lblPrint(*this, "lblPrint"),
      lstOpen(*this, "lstOpen"),
      lstPrint(*this, "lstPrint"),
      lblState(*this, "lblState") {
  DesignControls();
  cmbUser.Click = [this] { ChooseUser(); };
  cmbLevel.Click = [this] { ShowState(); };
  btnNew.Click = [this] { AddUser(); };
  btnDelete.Click = [this] { DeleteUser(); };
}

UserAdmin frmUsers::Admin() const { return UserAdmin(gSession->CommonDb()); }

void frmUsers::LoadDialog() {
  std::vector<std::string> captions;
  for (const Right& right : Rights()) captions.emplace_back(right.Caption);
  FillCheckList(lstOpen, captions, false);
  FillCheckList(lstPrint, captions, false);
  cmbLevel.Clear();
  for (int level = 0; level <= User::kSupervisor; ++level) cmbLevel.AddItem(std::to_string(level));
  FillUsers("");
}

void frmUsers::OnActivate() {
  if (ActiveControl() == nullptr) cmbUser.SetFocus();
}

void frmUsers::OnKeyDown(KeyEvent& key) {
  if (key.Shift == 0 && key.KeyCode == keys::kF2) {
    key.KeyCode = 0;
    btnNew.UserClick();
  } else if (key.Shift == 0 && key.KeyCode == keys::kF3 && btnDelete.Enabled) {
    key.KeyCode = 0;
    btnDelete.UserClick();
  } else {
    DialogForm::OnKeyDown(key);
  }
}

// --- Which user is shown

void frmUsers::FillUsers(const std::string& chosen) {
  users_ = Admin().All();
  shown_ = User{};
  cmbUser.Clear();
  int place = users_.empty() ? -1 : 0;
  for (const User& user : users_) {
    if (user.Name == chosen) place = cmbUser.ListCount();
    cmbUser.AddItem(user.Name);
  }
  cmbUser.SetListIndex(place);
  if (place < 0) ShowUser();
}

/// What was ticked for the one before is not lost unasked.
void frmUsers::ChooseUser() {
  const auto chosen = static_cast<std::size_t>(cmbUser.ListIndex());
  if (users_.at(chosen).Name == shown_.Name) return;
  if (IsChanged() && gStd->AskYesNo("What " + shown_.Name + " may do was changed. Save it?") &&
      !StoreUser()) {
    const auto before = std::find_if(users_.begin(), users_.end(),
                                     [this](const User& user) { return user.Name == shown_.Name; });
    cmbUser.SetListIndex(static_cast<int>(before - users_.begin()));
    return;
  }
  users_ = Admin().All();
  const std::string name = cmbUser.Text();
  const auto user =
      std::find_if(users_.begin(), users_.end(), [&](const User& known) { return known.Name == name; });
  shown_ = user != users_.end() ? *user : User{};
  ShowUser();
}

void frmUsers::ShowUser() {
  const bool isOne = !shown_.Name.empty();
  for (Control* const control :
       std::initializer_list<Control*>{&cmbUser, &cmbLevel, &btnDelete, &btnOKCancel(0)}) {
    control->Enabled = isOne;
  }
  cmbLevel.SetListIndex(isOne ? std::clamp(shown_.Level, 0, User::kSupervisor) : -1);
  TickRights();
  ticked_ = Ticks(lstOpen, lstPrint);
  ShowState();
}

void frmUsers::TickRights() {
  std::map<std::string, std::string> actions;
  if (!shown_.Name.empty()) actions = Admin().ActionsOf(shown_.Name);
  int item = 0;
  for (const Right& right : Rights()) {
    lstOpen.SetSelected(item, Has(actions[right.Key], kOpen));
    lstPrint.SetSelected(item++, Has(actions[right.Key], kPrint));
  }
}

void frmUsers::ShowState() {
  const bool isSupervisor = cmbLevel.ListIndex() == User::kSupervisor;
  lstOpen.Enabled = lstPrint.Enabled = !shown_.Name.empty() && !isSupervisor;
  if (shown_.Name.empty()) {
    lblState.Caption = "This firm keeps no users: everybody may do everything. F2 adds the first one.";
  } else {
    lblState.Caption = isSupervisor ? "A user of level 9 may do everything."
                                    : "What is not ticked a user below level 9 may not do. It holds when he "
                                      "opens the firm or the screen next.";
  }
}

// --- Changes

bool frmUsers::IsChanged() const {
  if (shown_.Name.empty()) return false;
  return cmbLevel.ListIndex() != shown_.Level || Ticks(lstOpen, lstPrint) != ticked_;
}

bool frmUsers::StoreUser() {
  std::map<std::string, std::string> actions = Admin().ActionsOf(shown_.Name);
  int item = 0;
  for (const Right& right : Rights()) {
    std::string& letters = actions[right.Key];
    letters = With(With(letters, kOpen, lstOpen.Selected(item)), kPrint, lstPrint.Selected(item));
    ++item;
  }
  try {
    Admin().Put({shown_.Name, cmbLevel.ListIndex()}, actions);
    return true;
  } catch (const HostError& error) {
    return RefuseAt(cmbLevel, std::string(error.what()) + ".", "W");
  }
}

bool frmUsers::Confirm() { return !IsChanged() || StoreUser(); }

void frmUsers::AddUser() {
  if (IsChanged() && !StoreUser()) return;
  std::string name;
  if (!gRuntime->AskInput({"Name of the new user", "New User", ""}, name)) return;
  name = text::Trim(name);
  try {
    Admin().Add({name, users_.empty() ? User::kSupervisor : 0});
  } catch (const HostError& error) {
    gStd->MsgBox(std::string(error.what()) + ".", "", "W");
    return;
  }
  FillUsers(name);
  cmbLevel.SetFocus();
}

void frmUsers::DeleteUser() {
  const std::string name = shown_.Name;
  if (name == DeskSession::Current().CurrentUser().Name) {
    gStd->MsgBox("You work as " + name + ".", "", "W");
    return;
  }
  if (!gStd->AskYesNo("Delete the user " + name + " with his rights and settings?", "W", IStd::kNo)) return;
  try {
    Admin().Delete(name);
  } catch (const HostError& error) {
    gStd->MsgBox(std::string(error.what()) + ".", "", "W");
    return;
  }
  FillUsers("");
}

}  // namespace quillon
