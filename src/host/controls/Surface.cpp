#include "host/controls/Surface.h"

#include "host/values/Text.h"

namespace quillon {

void Surface::DrawLine(const DrawnLine& line) {
  lines_.push_back(line);
  ContentChanged();
}

void Surface::ClearLines() {
  lines_.clear();
  ContentChanged();
}

void Surface::ReleaseHeavy() {
  ClearLines();
  Control::ReleaseHeavy();
}

Control::State Surface::Describe() const {
  State state = Control::Describe();
  Array lines;
  for (const DrawnLine& line : lines_) {
    lines.emplace_back(Array{line.fromLeft, line.fromTop, line.toLeft, line.toTop, line.color});
  }
  state.emplace_back("scalewidth", ScaleWidth());
  state.emplace_back("scaleheight", ScaleHeight());
  state.emplace_back("lines", lines);
  return state;
}

Variant Surface::Get(const std::string& member) {
  if (text::EqualNoCase(member, "ScaleWidth")) return ScaleWidth();
  if (text::EqualNoCase(member, "ScaleHeight")) return ScaleHeight();
  return Control::Get(member);
}

}  // namespace quillon
