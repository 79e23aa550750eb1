#pragma once

#include <utility>

namespace quillon {

/// For the length of a block a flag is set; then it is again what it was before.
class FlagHold {
 public:
  explicit FlagHold(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  FlagHold(const FlagHold&) = delete;
  FlagHold& operator=(const FlagHold&) = delete;
  ~FlagHold() { flag_ = before_; }

 private:
  bool& flag_;
  bool before_;
};

}  // namespace quillon
