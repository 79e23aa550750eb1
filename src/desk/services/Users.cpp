#include "desk/services/Users.h"

#include "desk/services/SqlText.h"
#include "host/CDataSet.h"
#include "host/Errors.h"

namespace quillon {

User FindUser(CDbLink& common, const std::string& name) {
  CDataSet users;
  users.Open("Select UserName,UserLevel from Users" +
                 (name.empty() ? "" : " where UserName=" + SqlString(name)) +
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
                  "UserName=" + SqlString(user.Name) + " and RightKey=" + SqlString(rightKey))
          .ToText();
  return granted.find(action) != std::string::npos;
}

void Grant(CDbLink& common, const std::string& user, const std::string& rightKey,
           const std::string& actions) {
  common.Execute("Update or insert into UserRights (UserName,RightKey,Actions) values (" + SqlString(user) +
                 "," + SqlString(rightKey) + "," + SqlString(actions) + ")");
}

}  // namespace quillon
