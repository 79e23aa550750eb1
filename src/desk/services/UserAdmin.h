#pragma once

#include <map>
#include <string>
#include <vector>

#include "desk/services/Users.h"

namespace quillon {

/// The users of a firm and what each may do. Each change is stored at once and whole. All that change throw
/// HostError, in plain words, for what a firm cannot have.
class UserAdmin {
 public:
  explicit UserAdmin(CDbLink& common) : common_(common) {}

  /// The highest level first; empty for a firm that keeps no users.
  std::vector<User> All() const;

  /// Refused without a name, for a name that is there, for a level outside 0 to 9, and for a first user who
  /// is not of the highest level, since nobody could then add another one.
  void Add(const User& user);

  /// With his rights and settings. Refused for the last of the highest level while there are others.
  void Delete(const std::string& name);

  /// The letters of actions by right, "N" open and "P" print.
  std::map<std::string, std::string> ActionsOf(const std::string& name) const;

  /// Stores a level, and the actions on the rights that are given; those on others stay as they are.
  void Put(const User& user, const std::map<std::string, std::string>& actions);

 private:
  void RequireSupervisorBeside(const std::string& name) const;

  CDbLink& common_;
};

}  // namespace quillon
