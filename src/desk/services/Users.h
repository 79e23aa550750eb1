#pragma once

#include <string>

#include "host/data/CDbLink.h"

namespace quillon {

/// A user of the firm. Level 9 and above may do everything.
struct User {
  static constexpr int kSupervisor = 9;

  std::string Name;
  int Level = kSupervisor;
};

/// The user of that name; an empty one takes the first of the highest level, and a firm that keeps no users
/// has just a supervisor. Throws HostError for a name that the firm does not have.
User FindUser(CDbLink& common, const std::string& name);

/// Whether the user may do the action ("N" open, "P" print) on the right: below the supervisor's level only
/// what stands in the rights of the user.
bool MayDo(CDbLink& common, const User& user, const std::string& rightKey, const std::string& action);

}  // namespace quillon
