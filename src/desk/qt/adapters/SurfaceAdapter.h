#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/PictureBox.h"

namespace quillon {

/// Shows a PictureBox: a surface that holds other controls and may be clicked.
class SurfaceAdapter : public Adapter {
 public:
  SurfaceAdapter(PictureBox& model, QWidget* parent);

  QWidget* Container() override { return &Widget(); }

 protected:
  void Draw() override;

 private:
  PictureBox& surface_;
};

}  // namespace quillon
