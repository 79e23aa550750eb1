#include "desk/screens/frmTrial.h"

#include <algorithm>

#include "host/forms/GridFill.h"
#include "host/services/host_services.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmTrial",
    .caption = "   What it would do",
    .titleSuffix = "",
    .rightKey = "",
    .registerTitle = "",
    .iconKey = "List",
    .firstKey = keys::kF8,
    .lastKey = keys::kF9,
};

enum Column { kYear, kWhat, kWhich, kBefore, kAfter, kCount };

}  // namespace

frmTrial::frmTrial(std::string screen, std::vector<TrialLine> lines)
    : ListScreen(kScreen, Origin::Desk), screen_(std::move(screen)), lines_(std::move(lines)) {}

void frmTrial::BuildBar() {
  BtnBar1.AddButtons({"Preview,F8: Preview,Preview", "Print,F9: Print,Print", "Exit,Esc: Exit,Close"});
}

void frmTrial::LoadScreen() { PlaceGrid(ContentTop()); }

void frmTrial::FirstShow() {
  GridFill fill(Grid, "What " + screen_ + " would do");
  Grid.Rows = 1;
  Grid.Cols = kCount;
  gStd->SetupGrid(Grid);
  SetColumnsInTwips(Grid, {{kYear, "Year", 0.07},
                           {kWhat, "What", 0.15},
                           {kWhich, "Which", 0.2},
                           {kBefore, "Before", 0.29},
                           {kAfter, "After", 0.29}});
  int row = 0;
  for (const TrialLine& line : lines_) {
    gStd->NextGridRow(row, Grid);
    int col = 0;
    for (const std::string* text : {&line.Year, &line.What, &line.Which, &line.Before, &line.After}) {
      Grid.SetTextMatrix(row, col++, *text);
    }
  }
  if (lines_.empty()) Grid.SetTextMatrix(1, kWhat, "Nothing");
  Grid.Rows = std::max(row + 1, 2);
  fill.Done();
  Grid.Row = 1;
}

void frmTrial::Print(bool print) {
  gReports->ShowGrid(Grid, nullptr, "What " + screen_ + " would do", "", IReports::kHostRuling, print);
}

}  // namespace quillon
