#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/Label.h"

namespace quillon {

/// Shows a Label; a text that is too long ends in dots.
class LabelAdapter : public Adapter {
 public:
  LabelAdapter(Label& model, QWidget* parent);

 protected:
  void Draw() override;
  void Dress() override;
  std::string SpokenName() const override { return label_.Caption; }
  void Clicked() override;
  void DoubleClicked() override;

 private:
  Label& label_;
};

}  // namespace quillon
