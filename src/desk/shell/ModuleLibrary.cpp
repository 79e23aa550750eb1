#include "desk/shell/ModuleLibrary.h"

#include <dlfcn.h>
#include <filesystem>

#include "host/values/Errors.h"

namespace quillon {

std::unique_ptr<IModule> ModuleLibrary::Create(const std::string& path) {
  const std::filesystem::path file =
      path.empty() ? std::filesystem::read_symlink("/proc/self/exe").parent_path() / "libquillon_module.so"
                   : std::filesystem::path(path);
  void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw HostError("The module cannot be loaded: " + std::string(dlerror()));
  const auto factory = reinterpret_cast<ModuleFactory>(dlsym(library, kModuleFactoryName));
  if (factory == nullptr) throw HostError(file.string() + " is no module of the desk");
  return std::unique_ptr<IModule>(factory());
}

}  // namespace quillon
