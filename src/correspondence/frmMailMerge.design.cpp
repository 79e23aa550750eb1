#include "correspondence/frmMailMerge.h"

namespace quillon {

void frmMailMerge::DesignControls() {
  constexpr long kEdge = 180;
  constexpr long kLine = 360;
  const long first = ContentTop() + 120;
  const long second = first + kLine + 120;
  txpRefNo.Caption = "Ref. No.";
  txpRefNo.LabelWidth = 1200;
  txpRefNo.Move(kEdge, first, 4200, kLine);
  txpDate.Caption = "Dated";
  txpDate.LabelWidth = 720;
  txpDate.Move(4800, first, 2640, kLine);
  chkLHead.Caption = "Print With Letter Head";
  chkLHead.Move(7860, first, 3000, kLine);
  txpReportName.Caption = "Letter Name";
  txpReportName.LabelWidth = 1200;
  txpReportName.Move(kEdge, second, 7260, kLine);
  const long top = second + kLine + 120;
  txtLetter.Font = quillon::Font{"Times New Roman", 12, false, false, false};
  txtLetter.Move(0, top, Width, ContentBottom() - top);
  Grid.Move(0, top, Width, txtLetter.Height);
  SelGrid1.Width = 6000;
  SelGrid1.Height = 3000;
}

}  // namespace quillon
