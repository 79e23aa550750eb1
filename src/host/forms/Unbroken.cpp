#include "host/forms/Unbroken.h"

namespace quillon {

namespace {

int& Depth() {
  static int depth = 0;
  return depth;
}

}  // namespace

Unbroken::Unbroken() { ++Depth(); }

Unbroken::~Unbroken() { --Depth(); }

bool Unbroken::IsOn() { return Depth() > 0; }

}  // namespace quillon
