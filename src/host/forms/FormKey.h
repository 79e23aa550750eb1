#pragma once

#include <memory>

#include "host/forms/Form.h"

namespace quillon {

/// A key of IModule.GetForm, in lower case, and the form that it makes anew at each call. Each subsystem
/// lists its own.
struct FormKey {
  const char* Key;
  FormPtr (*Make)();
};

template <class T>
FormPtr MakeForm() {
  return std::make_shared<T>();
}

}  // namespace quillon
