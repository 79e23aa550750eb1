#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/CheckBox.h"

namespace quillon {

/// Shows a CheckBox.
class CheckBoxAdapter : public Adapter {
 public:
  CheckBoxAdapter(CheckBox& model, QWidget* parent);

 protected:
  void Draw() override;
  std::string SpokenName() const override { return box_.Caption; }

 private:
  CheckBox& box_;
};

}  // namespace quillon
