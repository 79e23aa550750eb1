#include "entry/frmNarrations.h"

#include <algorithm>

#include "host/controls/RedrawHold.h"
#include "host/data/CDataSet.h"
#include "host/data/TransactionScope.h"
#include "host/forms/GridColumns.h"
#include "host/forms/GridRows.h"
#include "host/forms/RuntimeBox.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmNarrations",
    .caption = "Master Updation -> Standard Narrations",
    .titleSuffix = " -> Standard Narrations",
    .rightKey = "",
    .registerTitle = "Narrations",
    .iconKey = "Report",
    .firstKey = keys::kF2,
    .lastKey = keys::kF9,
    .helpContext = 15,
};

constexpr int kCode = 0;
constexpr int kNarration = 1;
constexpr long kRowHeight = 400;
constexpr double kCodeShare = 0.15;
constexpr long kBesideColumns = 400;
constexpr long kAsked = 255;
constexpr long kWhite = 0xFFFFFF;

std::string Comparable(std::string_view code) { return text::Upper(text::Trim(code)); }

}  // namespace

frmNarrations::frmNarrations() : ScreenForm(kScreen, Origin::Module), Grid(*this, "Grid") {
  Routine("SaveNarrations", &frmNarrations::SaveNarrations);
  Grid.Changed = [this] { dirty_ = true; };
  // The list grows by its button alone.
  Grid.BeforeEdit = [this](int row, int, bool& cancel, std::string& action) {
    cancel = row >= Grid.Rows;
    if (cancel) action = "Stop";
  };
  Grid.ValidateCell = [this](int row, int col, std::string& text, bool& cancel) {
    if (col == kCode) ValidateCode(row, text, cancel);
  };
}

void frmNarrations::BuildBar() {
  BtnBar1.AddButtons({"Add,F2: Add,New", "Delete,F3: Delete,Delete", "F4", "F5", "F6", "Save,F7: Save,Save",
                      "Preview,F8: Preview,Preview", "Print,F9: Print,Print", "Exit,Esc: Exit,Close"});
  BtnBar1.HideButtons({"F4", "F5", "F6"});
}

void frmNarrations::LoadScreen() {
  MStrip1.Visible = false;
  Grid.Move(0, MStrip1.Top, Width, ContentBottom() - MStrip1.Top);
  Grid.Font = quillon::Font{"Tahoma", 9.75, false, false, false};
  SetColumns();
  FillGrid();
  dirty_ = false;
}

void frmNarrations::SetColumns() {
  gStd->SetupGrid(Grid);
  Grid.RowHeightMin = kRowHeight;
  Grid.Cols = 2;
  const double code = kCodeShare * static_cast<double>(Grid.Width());
  SetColumnsInTwips(Grid, {{kCode, "Code", code, kAlignLeft},
                           {kNarration, "Narration",
                            static_cast<double>(Grid.Width() - kBesideColumns) - code, kAlignLeft}});
}

void frmNarrations::FillGrid() {
  const RedrawHold hold(Grid);
  Grid.Rows = 1;
  GridRows rows(Grid);
  CDataSet stored;
  for (stored.Open("Select * from Narrations Order by NarrationCode", gSession->CommonDb(), 1, 1);
       !stored.Eof(); stored.MoveNext()) {
    if (stored.Field("Narration").IsNull()) continue;
    const int row = rows.Next();
    Grid.SetTextMatrix(row, kCode, stored.Field("NarrationCode").ToText());
    Grid.SetTextMatrix(row, kNarration, stored.Field("Narration").ToText());
  }
  Grid.Rows = rows.Last() + 1;
  Grid.Row = std::min(1, rows.Last());
}

void frmNarrations::Pressed(const std::string& key) {
  if (key == "Add") {
    AddRow();
  } else if (key == "Delete") {
    DeleteRow();
  } else if (key == "Save" && SaveNarrations()) {
    gRuntime->Unload(*this);
  }
}

void frmNarrations::AddRow() {
  if (!Grid.EndEdit()) return;
  Grid.AddItem("");
  Grid.SetFocus();
  Grid.SetCell(Grid.Rows - 1, kCode);
}

void frmNarrations::DeleteRow() {
  const int row = Grid.Row;
  if (row < 1 || row >= Grid.Rows) return;
  gStd->SetRowColors(Grid, row, kCode, kNarration, kAsked, kWhite);
  const bool isFilled = !Grid.Cell(row, kNarration).empty();
  const bool goes = !isFilled || AskInBox(*this, "Are you sure to delete selected row?", "Q");
  gStd->SetRowColors(Grid, row, kCode, kNarration, Control::kDefaultColor, Control::kDefaultColor);
  if (goes) RemoveRow(row);
}

void frmNarrations::RemoveRow(int row) {
  Grid.CancelEdit();
  if (Grid.Rows > 2) {
    Grid.RemoveItem(row);
  } else {
    Grid.SetRowCount(2);
    for (const int col : {kCode, kNarration}) Grid.SetTextMatrix(1, col, "");
  }
  Grid.SetFocus();
  Grid.SetCell(std::min(row, Grid.Rows - 1), kCode);
}

bool frmNarrations::SaveNarrations() {
  if (!Grid.EndEdit()) return false;
  try {
    TransactionScope work(gSession->CommonDb());
    StoreRows();
    work.Commit();
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "SaveNarration");
    return false;
  }
  dirty_ = false;
  return true;
}

void frmNarrations::StoreRows() {
  CDbLink& common = gSession->CommonDb();
  common.Execute("Delete from Narrations");
  for (int row = 1; row < Grid.Rows; ++row) {
    const std::string code = Grid.TextMatrix(row, kCode);
    const std::string narration = Grid.TextMatrix(row, kNarration);
    if (text::Trim(code).empty() || text::Trim(narration).empty()) continue;
    common.Execute("Insert into Narrations (NarrationCode,Narration) values (" + gStd->SqlString(code) + "," +
                   gStd->SqlString(narration) + ")");
  }
}

/// The dot that a code may be typed with is no part of it, but the look for a double is made with it.
void frmNarrations::ValidateCode(int row, std::string& code, bool& cancel) {
  for (int other = 1; other < Grid.Rows; ++other) {
    if (other == row || Comparable(code) != Comparable(Grid.Cell(other, kCode))) continue;
    TellInBox(*this, "This code already exists", "W");
    cancel = true;
    return;
  }
  if (code.starts_with('.')) code.erase(0, 1);
}

void frmNarrations::Print(bool print) {
  if (!Grid.EndEdit()) return;
  gReports->ShowGrid(Grid, nullptr, "Standard Narrations", "", IReports::kHostRuling, print);
  Grid.SetFocus();
}

}  // namespace quillon
