#pragma once

#include <string>
#include <vector>

namespace quillon {

/// A right that users are given: to open screens ("N") and to print from them ("P").
struct Right {
  int Place;  ///< its order among the rights
  const char* Key;
  const char* Caption;
};

/// Those of all files NAME.right.cpp, in the order of their places.
std::vector<Right> Rights();

/// The caption of a right; the key itself where no right has it.
std::string RightCaption(const std::string& key);

}  // namespace quillon
