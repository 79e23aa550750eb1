#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/CommandButton.h"

namespace quillon {

/// Shows a CommandButton and a CButton.
class ButtonAdapter : public Adapter {
 public:
  ButtonAdapter(CommandButton& model, QWidget* parent);

  void Settle() override;

 protected:
  void Draw() override;
  std::string SpokenName() const override { return button_.Caption; }
  void Pressed(bool down) override;

 private:
  CommandButton& button_;
};

}  // namespace quillon
