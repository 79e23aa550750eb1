#include "desk/screens/frmChequeLayouts.h"

#include <algorithm>

#include "desk/screens/BankPayments.h"
#include "host/forms/GridFill.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmChequeLayouts",
    .caption = "   Cheque Layouts",
    .titleSuffix = " -> Cheque Layouts",
    .rightKey = "",
    .registerTitle = "Cheque Layouts",
    .iconKey = "Cheque",
    .firstKey = keys::kF2,
    .lastKey = keys::kF3,
};

namespace col {

constexpr int kCode = 0;
constexpr int kBank = 1;
constexpr int kStation = 2;
constexpr int kLayout = 3;
constexpr int kCount = 4;

}  // namespace col

}  // namespace

frmChequeLayouts::frmChequeLayouts() : ListScreen(kScreen, Origin::Desk) { Grid.Look.IsAllowed = true; }

void frmChequeLayouts::BuildBar() {
  BtnBar1.AddButtons({"Layout,F2: Layout,Config", "Export,F3: Export,Save", "Exit,Esc: Exit,Close"});
}

void frmChequeLayouts::LoadScreen() { PlaceGrid(ContentTop()); }

void frmChequeLayouts::FillGrid() {
  GridFill fill(Grid, "");
  const int stood = Grid.Row;
  Grid.Clear();
  Grid.Rows = 1;
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  SetColumnsInTwips(Grid, {{col::kCode, "", 0},
                           {col::kBank, "Bank", 0.5},
                           {col::kStation, "Station", 0.2},
                           {col::kLayout, "Layout", 0.3}});
  CDataSet banks;
  banks.Open("Select mcd,mhd,mst from FAMaster where mbshno=47 order by mhd", gSession->MainDb());
  int row = 0;
  for (; !banks.Eof(); banks.MoveNext()) {
    gStd->NextGridRow(row, Grid);
    const std::string code = banks.Field("mcd").ToText();
    const bool kept = !gApp->GetFirmSetting("ChqSetting." + code + ".Settings").empty();
    Grid.SetTextMatrix(row, col::kCode, code);
    Grid.SetTextMatrix(row, col::kBank, banks.Field("mhd").ToText());
    Grid.SetTextMatrix(row, col::kStation, banks.Field("mst").ToText());
    Grid.SetTextMatrix(row, col::kLayout, kept ? "Kept" : "As designed");
  }
  Grid.Rows = std::max(row + 1, 2);
  fill.Done();
  Grid.Row = std::clamp(stood, 1, Grid.Rows - 1);
  ShowAccountOfRow(Grid.Row);
}

void frmChequeLayouts::Pressed(const std::string& key) {
  if (AccountOfRow(Grid.Row) == 0) return;
  if (key == "Layout") {
    OpenRow(Grid.Row);
  } else if (key == "Export") {
    Export(Grid.Row);
  }
}

void frmChequeLayouts::OpenRow(int row) {
  if (AccountOfRow(row) != 0) OpenCheque(Self(), gSession->CurrentYear(), AccountOfRow(row), 0);
}

/// The form copies the layout that it has loaded; it need not be seen for that.
void frmChequeLayouts::Export(int row) {
  const FormPtr cheque = NewChequeForm(Self(), AccountOfRow(row));
  if (!cheque) return;
  gRuntime->Load(cheque);
  cheque->Call("ExportChqSettings", {});
  gRuntime->Unload(*cheque);
  FillGrid();
}

long frmChequeLayouts::AccountOfRow(int row) const {
  return static_cast<long>(ValInteger(Grid.Cell(row, col::kCode)));
}

}  // namespace quillon
