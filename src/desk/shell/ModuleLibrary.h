#pragma once

#include <memory>
#include <string>

#include "host/services/IModule.h"

namespace quillon {

/// The module's shared library, loaded into this process; it is never unloaded, since its forms may outlive
/// any holder.
class ModuleLibrary {
 public:
  /// An empty path looks beside this program. Throws HostError when it cannot be loaded or exports no module.
  static std::unique_ptr<IModule> Create(const std::string& path);
};

}  // namespace quillon
