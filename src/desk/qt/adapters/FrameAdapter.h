#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/Frame.h"

namespace quillon {

/// Shows a Frame, which holds other controls.
class FrameAdapter : public Adapter {
 public:
  FrameAdapter(Frame& model, QWidget* parent);

  QWidget* Container() override { return &Widget(); }

 protected:
  void Draw() override;
  std::string SpokenName() const override { return frame_.Caption; }

 private:
  Frame& frame_;
};

}  // namespace quillon
