#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>

#include "desk/driver/JsonText.h"

namespace quillon {

/// The answers that a script has laid ready for the dialogs, first in, first out for each kind.
class Answers {
 public:
  /// Throws HostError for a kind of dialog that there is not, or an answer without what it needs.
  void Add(const Json& command);

  /// The next answer of that kind; nothing when none is left.
  std::optional<Json> Take(const std::string& kind);

  /// What was not asked for, as a list.
  Json LeftOver() const;

 private:
  std::map<std::string, std::deque<Json>> queues_;
};

}  // namespace quillon
