#include "graph/frmGraph.h"

namespace quillon {

namespace {

constexpr long kTitleHeight = 420;
constexpr long kHeadingHeight = 330;
constexpr long kPanelWidth = 3180;
constexpr long kTableHeight = 1290;
constexpr long kScrollThickness = 255;
constexpr long kStandardButtonsWidth = 1200;
constexpr long kEdge = 60;
constexpr long kButtonWidth = 1500;
constexpr long kButtonHeight = 345;
constexpr long kButtonLine = kButtonHeight + 45;
constexpr long kGroupHeading = 300;
constexpr long kGroupGap = 90;
constexpr int kTableRows = 4;
constexpr int kHelp = 4;
constexpr int kCentre = 2;

const Font kTitleFont{"Tahoma", 9.75, true};
const Font kHeadingFont{"Tahoma", 8.25, true};

/// Places the groups of the panel one below the other, their buttons two on a line.
class Panel {
 public:
  void Heading(Label& label, const char* caption) {
    if (at_ > kEdge) at_ += kGroupGap;
    label.Caption = caption;
    label.Font = kHeadingFont;
    label.Move(kEdge, at_, kPanelWidth - 2 * kEdge, kGroupHeading);
    at_ += kGroupHeading;
  }

  void Buttons(ControlArray<CommandButton>& buttons, const std::vector<const char*>& captions) {
    int place = 0;
    for (auto& [index, button] : buttons) {
      button->Caption = captions.at(static_cast<std::size_t>(place));
      button->Move(ColumnLeft(place % 2), at_ + place / 2 * kButtonLine, kButtonWidth, kButtonHeight);
      ++place;
    }
    at_ += (place + 1) / 2 * kButtonLine;
  }

  void Field(Control& control) {
    control.Move(kEdge, at_, kButtonWidth, kButtonHeight);
    at_ += kButtonLine;
  }

  void Last(CommandButton& left, CommandButton& right) {
    at_ += 2 * kGroupGap;
    left.Move(ColumnLeft(0), at_, kButtonWidth, kButtonHeight);
    right.Move(ColumnLeft(1), at_, kButtonWidth, kButtonHeight);
  }

 private:
  static long ColumnLeft(int column) { return kEdge + column * (kButtonWidth + kEdge); }

  long at_ = kEdge;
};

}  // namespace

void frmGraph::DesignControls() {
  Caption = "Graph";
  HelpContext = kHelp;
  lblTitle.Caption = "   Graphical Representation";
  lblTitle.Height = kTitleHeight;
  lblTitle.Font = kTitleFont;
  const char* const headings[] = {"Firm", "Account Head", "Period"};
  for (auto& [index, label] : lblTitle1) {
    label->Caption = headings[index];
    label->Height = kHeadingHeight;
    label->Font = kTitleFont;
    label->Alignment = kCentre;
  }
  Picture1.Width = kPanelWidth;
  Picture1.BorderStyle = 0;
  Picture3.Height = kTableHeight;
  Picture3.BorderStyle = 0;
  HScroll1.Height = kScrollThickness;
  VScroll1.Width = kScrollThickness;
  VScroll1.Vertical = true;
  QuillonStdButtons1.Move(0, 0, kStandardButtonsWidth, kTitleHeight);
  Grid.Rows = kTableRows;
  DesignPanel();
}

void frmGraph::DesignPanel() {
  for (const char* zoom : {"200%", "150%", "100%", "75%", "50%"}) cmbZoom.AddItem(zoom);
  cmdPrint(0).Caption = "Print";
  cmdExit.Caption = "Esc : Exit";
  Panel panel;
  panel.Heading(Label1(0), "Graph Style");
  panel.Buttons(cmdGraphStyle, {"Bar", "Line", "Pie", "3D Bar", "3D Line"});
  panel.Heading(Label1(1), "Period");
  panel.Buttons(cmdPeriod, {"Quarter-Wise", "Month-Wise", "Date-Wise"});
  panel.Heading(Label1(2), "Figures");
  panel.Buttons(cmdCummlative, {"Non-Cummlative", "Cummlative"});
  panel.Heading(Label1(3), "Zoom");
  panel.Field(cmbZoom);
  panel.Heading(Label1(4), "Compare with");
  panel.Buttons(cmdCompare, {"None", "Previous Year", "Next Year", "Both Prev/Next"});
  panel.Last(cmdPrint(0), cmdExit);
}

}  // namespace quillon
