#pragma once

#include <string>

#include "host/forms/Form.h"

namespace quillon {

/// What other modules ask of the stores module: "MainDB", which turns a head into the name of a file.
class frmMainDB : public Form {
 public:
  frmMainDB();

  /// The head without what a file's name may not hold, blanks folded; "Unnamed" when nothing is left.
  std::string MakeFileName(int reserved, const std::string& head);
};

}  // namespace quillon
