#include "desk/services/UserAdmin.h"

#include <algorithm>

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/data/TransactionScope.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

using books::SqlString;

namespace {

constexpr std::size_t kLongestName = 40;

void RequireLevel(int level) {
  if (level < 0 || level > User::kSupervisor) {
    throw HostError("The level of a user is a number from 0 to " + std::to_string(User::kSupervisor));
  }
}

}  // namespace

std::vector<User> UserAdmin::All() const {
  std::vector<User> users;
  CDataSet rows;
  for (rows.Open("Select UserName,UserLevel from Users order by UserLevel desc,UserName", common_);
       !rows.Eof(); rows.MoveNext()) {
    users.push_back({rows.Field("UserName").ToText(), static_cast<int>(rows.Field("UserLevel").ToInteger())});
  }
  return users;
}

void UserAdmin::Add(const User& user) {
  RequireLevel(user.Level);
  const std::vector<User> all = All();
  if (text::Trim(user.Name).empty()) throw HostError("A user has a name");
  if (text::Length(user.Name) > kLongestName) throw HostError("The name of a user has at most 40 letters");
  const bool isThere = std::any_of(
      all.begin(), all.end(), [&](const User& known) { return text::EqualNoCase(known.Name, user.Name); });
  if (isThere) throw HostError("There is a user " + user.Name + " already");
  if (all.empty() && user.Level < User::kSupervisor) {
    throw HostError("The first user is of level 9: nobody else could add another one");
  }
  common_.Execute("insert into Users (UserName,UserLevel) values (" + SqlString(user.Name) + "," +
                  std::to_string(user.Level) + ")");
}

void UserAdmin::RequireSupervisorBeside(const std::string& name) const {
  const std::vector<User> all = All();
  const bool isOne = std::any_of(all.begin(), all.end(), [&](const User& user) {
    return user.Name != name && user.Level >= User::kSupervisor;
  });
  if (!isOne) throw HostError("The firm needs a user of level 9 beside " + name);
}

void UserAdmin::Delete(const std::string& name) {
  if (All().size() > 1) RequireSupervisorBeside(name);
  TransactionScope work(common_);
  for (const char* table : {"UserRights", "UserSettings", "Users"}) {
    common_.Execute(std::string("delete from ") + table + " where UserName=" + SqlString(name));
  }
  work.Commit();
}

std::map<std::string, std::string> UserAdmin::ActionsOf(const std::string& name) const {
  std::map<std::string, std::string> actions;
  CDataSet rows;
  for (rows.Open("Select RightKey,Actions from UserRights where UserName=" + SqlString(name), common_);
       !rows.Eof(); rows.MoveNext()) {
    actions[rows.Field("RightKey").ToText()] = rows.Field("Actions").ToText();
  }
  return actions;
}

void UserAdmin::Put(const User& user, const std::map<std::string, std::string>& actions) {
  RequireLevel(user.Level);
  if (user.Level < User::kSupervisor) RequireSupervisorBeside(user.Name);
  TransactionScope work(common_);
  const std::string name = SqlString(user.Name);
  common_.Execute("update Users set UserLevel=" + std::to_string(user.Level) + " where UserName=" + name);
  for (const auto& [right, letters] : actions) {
    const std::string key = SqlString(right);
    common_.Execute(letters.empty()
                        ? "delete from UserRights where UserName=" + name + " and RightKey=" + key
                        : "update or insert into UserRights (UserName,RightKey,Actions) values (" + name +
                              "," + key + "," + SqlString(letters) + ") matching (UserName,RightKey)");
  }
  work.Commit();
}

}  // namespace quillon
