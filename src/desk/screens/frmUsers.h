#pragma once

#include <string>
#include <vector>

#include "desk/services/UserAdmin.h"
#include "host/controls/ComboBox.h"
#include "host/controls/CommandButton.h"
#include "host/controls/Label.h"
#include "host/controls/ListBox.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// "Users and Rights": who works in the firm, at which level, and what each may open and print.
class frmUsers : public DialogForm {
 public:
  frmUsers();

  Label lblUser;
  ComboBox cmbUser;
  Label lblLevel;
  ComboBox cmbLevel;
  CommandButton btnNew;
  CommandButton btnDelete;
  Label lblOpen;
  Label lblPrint;
  ListBox lstOpen;   ///< the rights, ticked where the user may open what they are for
  ListBox lstPrint;  ///< the same for printing
  Label lblState;

 protected:
  void LoadDialog() override;
  void OnActivate() override;
  void OnKeyDown(KeyEvent& key) override;
  bool Confirm() override;

 private:
  void DesignControls();
  UserAdmin Admin() const;
  void FillUsers(const std::string& chosen);
  void ChooseUser();
  void ShowUser();
  void ShowState();
  void TickRights();
  bool IsChanged() const;
  bool StoreUser();
  void AddUser();
  void DeleteUser();

  std::vector<User> users_;
  User shown_;
  std::vector<std::string> ticked_;  // of the lists, as the firm has them
};

}  // namespace quillon
