#include "layout/LayoutRun.h"

#include "host/forms/Runtime.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kAlignedRight = 1;

/// Margins are kept no finer than a single, as the stored layouts were worked out.
double Twips(const std::string& inches) {
  return static_cast<double>(static_cast<float>(IPrinter::ScaleX(Val(inches))));
}

IPrinter& ChosenPrinter(const PrintSetup* setup) {
  if (setup != nullptr) setup->TakePrinter();
  return gRuntime->Printer();
}

}  // namespace

LayoutRun::Margins LayoutRun::Margins::OfInches(const std::string& left, const std::string& top) {
  return {Twips(left), Twips(top)};
}

LayoutRun::LayoutRun(const PrintSetup* setup, bool isLandscape, const Margins& margins)
    : run_(ChosenPrinter(setup)), margins_(margins) {
  Printer().PaperSize = IPrinter::kA4;
  Printer().Orientation = isLandscape ? IPrinter::kLandscape : IPrinter::kPortrait;
}

void LayoutRun::PrintLines(const Label& object, const std::vector<std::string>& lines, bool keepsAlignment) {
  IPrinter& printer = Printer();
  const bool alignsRight = keepsAlignment && object.Alignment == kAlignedRight;
  printer.CurrentY = static_cast<double>(object.Top) + margins_.Top;
  for (const std::string& line : lines) {
    printer.CurrentX = static_cast<double>(object.Left) + margins_.Left;
    if (alignsRight) printer.CurrentX += static_cast<double>(object.Width) - printer.TextWidth(line);
    printer.Print(line);
  }
}

}  // namespace quillon
