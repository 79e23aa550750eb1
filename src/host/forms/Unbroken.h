#pragma once

namespace quillon {

/// As long as it lives Esc breaks off nothing that is read. Work that changes row after row, each for good,
/// reads between its changes: broken off there it would be left half done.
class Unbroken {
 public:
  Unbroken();
  Unbroken(const Unbroken&) = delete;
  Unbroken& operator=(const Unbroken&) = delete;
  ~Unbroken();

  static bool IsOn();
};

}  // namespace quillon
