#pragma once

#include <memory>
#include <string>

#include "host/services/HostApp.h"
#include "host/services/IModule.h"

namespace quillon {

/// The module's one public class: the factory of its forms, and the place that unloads them.
class CQuillonModule : public IModule {
 public:
  CQuillonModule() = default;
  ~CQuillonModule() override;

  void Init(HostApp& quillonApp) override;
  void Terminate() override;
  std::string ID() const override;
  std::string Description() const override;
  std::shared_ptr<Form> GetForm(const std::string& formName) override;
  std::int16_t RunProc(const std::string& procName, const std::string& argument) override;
  IModule& Obj() override { return *this; }

 private:
  void mQuillon_MainMenuClick(const std::string& btnKey);
  void Disconnect();

  HostApp* mQuillon_ = nullptr;
};

}  // namespace quillon
