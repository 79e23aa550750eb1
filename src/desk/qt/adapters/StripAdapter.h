#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/CMStrip.h"

namespace quillon {

/// Shows a CMStrip: the details of its account.
class StripAdapter : public Adapter {
 public:
  StripAdapter(CMStrip& model, QWidget* parent);

 protected:
  void Draw() override;
  void Dress() override;
  std::string SpokenName() const override { return "Account " + strip_.Details(); }

 private:
  CMStrip& strip_;
};

}  // namespace quillon
