#include "desk/screens/frmPrinter.h"

namespace quillon {

void frmPrinter::DesignControls() {
  constexpr long kEdge = 240;
  constexpr long kLine = 360;
  constexpr const char* kCaptions[] = {"Left edge to the upper left cross", "Upper edge to that cross",
                                       "That cross to the upper right one",
                                       "That cross to the lower left one"};
  lblPrinter.Caption = "Printer";
  lblPrinter.Move(kEdge, kEdge, 900, kLine);
  cmbPrinter.Move(1200, kEdge, 3900, kLine);
  btnProof.Caption = "Print Proof Sheet";
  btnProof.Move(5340, kEdge, 2220, kLine);
  lblMeasure.Caption = "What you have measured on the proof sheet";
  lblMeasure.Move(kEdge, 840, 6000, kLine);
  for (auto& [index, field] : txpMeasure) {
    const long top = 1260 + index * 480;
    field->Caption = kCaptions[index];
    field->LabelWidth = 3300;
    field->Move(kEdge, top, 4500, kLine);
    lblUnit(index).Caption = "mm";
    lblUnit(index).Move(4860, top, 600, kLine);
  }
  lblState.Move(kEdge, 3360, 7300, 720);
  lblState.WordWrap = true;
}

}  // namespace quillon
