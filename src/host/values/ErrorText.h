#pragma once

#include <exception>
#include <string>

#include "host/values/Errors.h"

namespace quillon {

/// What an error tells the user, with the statement where the database refused one.
inline std::string ErrorText(const std::exception& error) {
  const auto* refused = dynamic_cast<const DbError*>(&error);
  const std::string statement = refused != nullptr ? refused->Statement() : "";
  return error.what() + (statement.empty() ? "" : "\nStatement: " + statement);
}

}  // namespace quillon
