#pragma once

#include <memory>
#include <string>

namespace quillon {

class Form;
class HostApp;

/// A plug-in of the host.
class IModule {
 public:
  IModule() = default;
  IModule(const IModule&) = delete;
  IModule& operator=(const IModule&) = delete;
  virtual ~IModule() = default;

  virtual void Init(HostApp& app) = 0;
  virtual void Terminate() = 0;
  virtual std::string ID() const = 0;
  virtual std::string Description() const = 0;

  /// A new form for the key, neither loaded nor shown; nothing for an unknown key.
  virtual std::shared_ptr<Form> GetForm(const std::string& name) = 0;
  virtual std::int16_t RunProc(const std::string& name, const std::string& argument) = 0;
  virtual IModule& Obj() = 0;
};

/// The one function that a module library exports: `extern "C" IModule* CreateQuillonModule()`. The caller
/// owns the result.
using ModuleFactory = IModule* (*)();
inline constexpr const char* kModuleFactoryName = "CreateQuillonModule";

}  // namespace quillon
