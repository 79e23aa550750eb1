#include "desk/services/Users.h"

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/values/Errors.h"

namespace quillon {

User FindUser(CDbLink& common, const std::string& name) {
  CDataSet users;
  users.Open("Select UserName,UserLevel from Users" +
                 (name.empty() ? "" : " where UserName=" + books::SqlString(name)) +
                 " order by UserLevel desc,UserName",
             common);
  if (!users.Eof()) {
    return {users.Field("UserName").ToText(), static_cast<int>(users.Field("UserLevel").ToInteger())};
  }
  if (!name.empty()) throw HostError("The firm has no user " + name);
  return {"Supervisor", User::kSupervisor};
}

bool MayDo(CDbLink& common, const User& user, const std::string& rightKey, const std::string& action) {
  if (user.Level >= User::kSupervisor) return true;
  const std::string granted =
      common
          .Lookup("UserRights", "Actions",
                  "UserName=" + books::SqlString(user.Name) + " and RightKey=" + books::SqlString(rightKey))
          .ToText();
  return granted.find(action) != std::string::npos;
}

}  // namespace quillon
