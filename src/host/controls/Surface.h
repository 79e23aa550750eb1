#pragma once

#include <vector>

#include "host/controls/Control.h"

namespace quillon {

/// What holds other controls and can be drawn on: a form, a picture box. Its lines lie behind the controls.
class Surface : public Control {
 public:
  using Control::Control;

  /// From one point to another, in twips from the top left corner of the surface.
  struct DrawnLine {
    long fromLeft = 0;
    long fromTop = 0;
    long toLeft = 0;
    long toTop = 0;
    long color = 0;
  };

  void DrawLine(const DrawnLine& line);
  void ClearLines();
  const std::vector<DrawnLine>& Lines() const { return lines_; }

  /// Twips of the room inside the edges.
  long ScaleWidth() const { return Width; }
  long ScaleHeight() const { return Height; }

  void ReleaseHeavy() override;
  State Describe() const override;
  Variant Get(const std::string& member) override;

 private:
  std::vector<DrawnLine> lines_;
};

}  // namespace quillon
