#pragma once

#include <string>
#include <vector>

#include "desk/driver/JsonText.h"

namespace quillon {

/// The engine of a process knows the locks of one firm only, so the driver goes on with another firm as a
/// process that is started anew in its place, with its input, its output and what the script has done so far.
class FreshProcess {
 public:
  /// What a process was told by the one whose place it took: `state`, and the input that was read ahead.
  struct Handed {
    Json State;
    std::string Ahead;
  };

  /// Lets a child open the firm that the command names, so that the one at hand stays open when that fails.
  /// Throws HostError with the child's words.
  static void RequireOpens(const Json& command);

  /// Ends this program in favour of a new one of its own kind, with these words of the command line. Throws
  /// HostError when that can't be had.
  [[noreturn]] static void Begin(const std::vector<std::string>& words, const Handed& handed);

  /// Reads what Begin has left in that file.
  static Handed Take(int file);
};

}  // namespace quillon
