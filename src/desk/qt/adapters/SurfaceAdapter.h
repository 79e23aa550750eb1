#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/PictureBox.h"

class QPainter;

namespace quillon {

/// Shows a PictureBox: a surface that holds other controls and may be clicked.
class SurfaceAdapter : public Adapter {
 public:
  SurfaceAdapter(PictureBox& model, QWidget* parent);

  QWidget* Container() override { return &Widget(); }

  /// The lines that are drawn on a surface, a form too.
  static void DrawLines(QPainter& painter, const Surface& surface);

 protected:
  void Draw() override;

 private:
  PictureBox& surface_;
};

}  // namespace quillon
