#pragma once

#include <vector>

namespace quillon {

class frmAccount;

/// A line of the statement of account's "F7: Others".
struct AccountTool {
  int Place;  ///< its order among the lines
  const char* Key;
  const char* Caption;
  void (*Open)(frmAccount&);  ///< on the statement's account and period
};

/// Those of all files NAME.tool.cpp, in the order of their places.
std::vector<AccountTool> AccountTools();

}  // namespace quillon
