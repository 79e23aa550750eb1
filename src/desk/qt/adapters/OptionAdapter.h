#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/OptionButton.h"

namespace quillon {

/// Shows an OptionButton.
class OptionAdapter : public Adapter {
 public:
  OptionAdapter(OptionButton& model, QWidget* parent);

 protected:
  void Draw() override;
  std::string SpokenName() const override { return option_.Caption; }

 private:
  OptionButton& option_;
};

}  // namespace quillon
