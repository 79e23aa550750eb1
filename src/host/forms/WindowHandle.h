#pragma once

#include <string>
#include <utility>

#include "host/values/Variant.h"

namespace quillon {

/// The host's handle of a registered form: how it stands in the list of open windows.
class WindowHandle : public Object {
 public:
  WindowHandle(std::string title, std::string iconKey)
      : Title(std::move(title)), IconKey(std::move(iconKey)) {}

  const std::string Title;
  const std::string IconKey;
};

}  // namespace quillon
