#pragma once

#include <exception>
#include <string>

#include "host/values/Errors.h"

namespace quillon {

/// What an error tells the user.
inline std::string ErrorText(const std::exception& error) { return error.what(); }

/// What stands behind it, for "Details": the engine's text and the statement; empty where there is no more to
/// say.
inline std::string ErrorDetails(const std::exception& error) {
  const auto* refused = dynamic_cast<const DbError*>(&error);
  return refused != nullptr ? refused->Details() : std::string();
}

}  // namespace quillon
