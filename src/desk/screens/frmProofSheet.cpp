#include "desk/screens/frmProofSheet.h"

#include <cmath>

namespace quillon {

namespace {

constexpr double kTwips = 1440 / 25.4;  // of a millimetre
constexpr double kInch = 25.4;          // millimetres
constexpr double kCrossArm = 5;
constexpr double kLeft = 20;
constexpr double kTop = 20;
constexpr double kAcross = 150;
constexpr double kDown = 200;

long Twips(double millimetres) { return std::lround(millimetres * kTwips); }

}  // namespace

frmProofSheet::frmProofSheet(const std::string& printer) : Form("frmProofSheet", Origin::Desk) {
  Width = Twips(210);
  Height = Twips(297);
  BackColor = 0xFFFFFF;
  DrawCross(kLeft, kTop);
  DrawCross(kLeft + kAcross, kTop);
  DrawCross(kLeft, kTop + kDown);
  DrawRule(kLeft, 45, kAcross, 1, true);
  DrawRule(kLeft, 60, kAcross, kInch / 8, true);
  DrawRule(40, 75, kDown - 60, 1, false);
  DrawRule(60, 75, kDown - 60, kInch / 8, false);
  Write(80, 90, 110, "Proof sheet for " + printer);
  Write(80, 100, 110, "Measure, in millimetres, with a ruler of steel:");
  Write(80, 108, 110, "1. from the paper's left edge to the upper left cross: 20");
  Write(80, 116, 110, "2. from the paper's upper edge to that cross: 20");
  Write(80, 124, 110, "3. from that cross to the upper right one: 150");
  Write(80, 132, 110, "4. from that cross to the lower left one: 200");
  Write(80, 142, 110, "and type what you have measured.");
}

void frmProofSheet::DrawCross(double left, double top) {
  DrawLine({Twips(left - kCrossArm), Twips(top), Twips(left + kCrossArm), Twips(top), 0});
  DrawLine({Twips(left), Twips(top - kCrossArm), Twips(left), Twips(top + kCrossArm), 0});
}

void frmProofSheet::DrawRule(double left, double top, double length, double unit, bool across) {
  const auto line = [&](double from, double aside, double to, double asideTo) {
    if (across) {
      DrawLine({Twips(left + from), Twips(top + aside), Twips(left + to), Twips(top + asideTo), 0});
    } else {
      DrawLine({Twips(left + aside), Twips(top + from), Twips(left + asideTo), Twips(top + to), 0});
    }
  };
  line(0, 0, length, 0);
  const bool inches = unit > 2;
  const int whole = inches ? 8 : 10;
  for (int mark = 0; mark * unit <= length; ++mark) {
    const bool isWhole = mark % whole == 0;
    const bool isHalf = mark % (whole / 2) == 0;
    line(mark * unit, 0, mark * unit, isWhole ? 5 : isHalf ? 3.5 : 2);
    if (!isWhole) continue;
    const std::string number = inches ? std::to_string(mark / whole) + "\"" : std::to_string(mark);
    Write(left + (across ? mark * unit + 0.5 : 5.5), top + (across ? 4 : mark * unit - 2), 12, number);
  }
}

void frmProofSheet::Write(double left, double top, double width, const std::string& text) {
  auto word = std::make_unique<Label>(*this, "lblWord", static_cast<int>(words_.size()));
  word->Caption = text;
  word->Move(Twips(left), Twips(top), Twips(width), Twips(5));
  words_.push_back(std::move(word));
}

}  // namespace quillon
