#include "desk/qt/adapters/Scale.h"

#include <algorithm>
#include <cmath>

#include "desk/print/Fonts.h"
#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr int kWhole = 100;

int& Zoom() {
  static int percent = kWhole;
  return percent;
}

}  // namespace

int Scale::Percent() { return Zoom(); }

void Scale::SetPercent(int percent) { Zoom() = std::clamp(percent, kLeastPercent, kMostPercent); }

void Scale::SetDrawing(int percent) { Zoom() = percent; }

int Scale::Px(long twips) {
  return static_cast<int>(
      std::lround(static_cast<double>(twips) * Zoom() / (kWhole * Runtime::kTwipsPerPixel)));
}

long Scale::Twips(int pixels) {
  return std::lround(static_cast<double>(pixels) * kWhole * Runtime::kTwipsPerPixel / Zoom());
}

QRect Scale::Rect(const Control& control) {
  const int left = Px(control.Left);
  const int top = Px(control.Top);
  return {left, top, Px(control.Left + control.Width) - left, Px(control.Top + control.Height) - top};
}

QFont Scale::FontOf(const Font& font) {
  QFont made = Fonts::Of(font);
  made.setPointSizeF(made.pointSizeF() * Zoom() / kWhole);
  return made;
}

}  // namespace quillon
