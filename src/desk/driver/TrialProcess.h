#pragma once

#include <cstdint>
#include <string>

#include "desk/driver/JsonText.h"

namespace quillon {

/// A driver of its own for a trial, because the engine of a process knows one firm's locks only.
class TrialProcess {
 public:
  struct Work {
    std::string Folder;  ///< of the firm of trial
    std::string User;
    int StartYear;
    std::string Form;
    std::int64_t Account;
    std::string Output;  ///< the folder for what is printed
  };

  /// Opens the screen, carries out the commands in it and answers all that the driver wrote. Throws HostError
  /// when it does not run.
  static Json Run(const Work& work, const Json& script);
};

}  // namespace quillon
