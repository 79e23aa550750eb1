#pragma once

#include <optional>
#include <string>

#include "host/forms/Form.h"

namespace quillon {

/// What is asked of the host's account picker. An empty text leaves the picker's own.
struct AccountQuestion {
  std::string Title;      ///< "   Select Account"
  std::string ListTitle;  ///< "Select an Account"
  std::string Condition;  ///< on FAMaster's columns
  std::string Table;      ///< that the query is on, where it is not the accounts'
  std::string Query;      ///< whole; its first column is shown, its second is the code
  int HeadWidth = 30;     ///< characters
};

struct PickedAccount {
  long Code = 0;
  std::string Head;
};

/// Asks the user for an account, modally over `owner`; nothing when he went back.
std::optional<PickedAccount> PickAccount(Form& owner, const AccountQuestion& question = {});

}  // namespace quillon
