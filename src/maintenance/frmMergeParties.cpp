#include "maintenance/frmMergeParties.h"

#include "host/controls/RedrawHold.h"
#include "host/forms/BusyJob.h"
#include "host/forms/Unbroken.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"
#include "maintenance/MergeYears.h"
#include "maintenance/PartyColumns.h"
#include "maintenance/PartyMerge.h"

namespace quillon {

namespace col = party_col;

namespace {

constexpr int kMergeLevel = 9;
constexpr int kHeadWidth = 15;

/// Where the code of a head stands; its station stands right of it.
int CodeColumn(int head) { return head == col::kDuplicateHead ? col::kDuplicateCode : col::kCode; }

}  // namespace

frmMergeParties::frmMergeParties()
    : DialogForm({.className = "frmMergeParties", .caption = "Merge Parties", .width = 9600, .height = 7500}),
      Grid(*this, "Grid"),
      chkAllYears(*this, "chkAllYears"),
      lblWarning(*this, "lblWarning"),
      btnSearchDuplicate(*this, "btnSearchDuplicate"),
      SelGrid1(*this, "SelGrid1") {
  DesignControls();
  ConnectGrid();
  chkAllYears.Click = [this] { chkAllYears_Click(); };
  btnSearchDuplicate.Click = [this] { btnSearchDuplicate_Click(); };
  SelGrid1.Selected = [this] { SelGrid1_Selected(); };
}

void frmMergeParties::ConnectGrid() {
  Grid.BeforeEdit = [this](int row, int column, bool& cancel, std::string& action) {
    Grid_BeforeEdit(row, column, cancel, action);
  };
  Grid.CellGotFocus = [this](int row, int column) { Grid_CellGotFocus(row, column); };
  Grid.ValidateCell = [this](int, int, std::string&, bool&) { stored_ = true; };
  Grid.CellLostFocus = [this](int row, int column) { Grid_CellLostFocus(row, column); };
  Grid.RowAdded = [this](int row) { NumberRow(row); };
}

void frmMergeParties::LoadDialog() {
  SetColumns();
  chkAllYears_Click();
}

void frmMergeParties::OnActivate() {
  if (gSession->UserLevel() >= kMergeLevel) {
    Grid.SetFocus();
    return;
  }
  gStd->MsgBox("Access Denied.", "", "E");
  gRuntime->Unload(*this);
}

void frmMergeParties::chkAllYears_Click() {
  lblWarning.Caption = chkAllYears.CheckValue == 1
                           ? "Warning: You must take backup of All Years before merging parties."
                           : "Warning: You must take backup before merging parties.";
}

// --- The list

bool frmMergeParties::HasCode(int row, int column) const {
  return row < Grid.Rows && ValInteger(Grid.Cell(row, column)) != 0;
}

void frmMergeParties::NumberRow(int row) { Grid.SetTextMatrix(row, col::kSerial, std::to_string(row)); }

/// Rows are filled one after the other, the original before its duplicate.
void frmMergeParties::Grid_BeforeEdit(int row, int column, bool& cancel, std::string& action) {
  const bool isAhead =
      (row > 1 && !HasCode(row - 1, col::kCode)) || (column > col::kHead && !HasCode(row, col::kCode));
  cancel = isAhead || (column != col::kHead && column != col::kDuplicateHead);
  if (isAhead) action = "Stop";
}

void frmMergeParties::Grid_CellGotFocus(int row, int column) {
  constexpr long kIndent = 120;
  codeBefore_ = Grid.TextMatrix(row, CodeColumn(column));
  stationBefore_ = Grid.TextMatrix(row, column + 1);
  stored_ = false;
  if (Grid.Cell(row, col::kSerial).empty()) NumberRow(row);
  if (SelGrid1.Visible) return;
  if (!SelGrid1.IsLoaded()) LoadList();
  SelGrid1.OpenUnder(Grid, {.indent = kIndent, .width = ScaleWidth() * 7 / 10, .aboveBottom = kIndent});
}

void frmMergeParties::LoadList() {
  SelGrid1.Title.Caption = "Select A/c";
  SelGrid1.Load("SELECT MHD,MCD,MST FROM FAMASTER WHERE MBSHNO IN (130,140) ORDER BY MHD,MST",
                gSession->MainDb(), true, kHeadWidth);
  int column = 0;
  for (const char* title : {"A/c Head", "Code", "Station"}) SelGrid1.Grid.SetTextMatrix(0, column++, title);
}

/// Code and station go with their head: back to what they were where the text was dropped.
void frmMergeParties::Grid_CellLostFocus(int row, int column) {
  SelGrid1.Close();
  if (!stored_) PutAccount(row, column, codeBefore_, stationBefore_);
  if (Grid.Cell(row, column).empty()) PutAccount(row, column, "", "");
}

void frmMergeParties::SelGrid1_Selected() {
  const int line = SelGrid1.Grid.Row;
  PutAccount(Grid.Row, Grid.Col, std::to_string(ValInteger(SelGrid1.Cell(line, 1))), SelGrid1.Cell(line, 2));
}

void frmMergeParties::PutAccount(int row, int column, const std::string& code, const std::string& station) {
  Grid.SetTextMatrix(row, CodeColumn(column), code);
  Grid.SetTextMatrix(row, column + 1, station);
}

void frmMergeParties::btnSearchDuplicate_Click() {
  const BusyJob job;
  Grid.Clear();
  DuplicateSearch search(gSession->MainDb());
  search.BlankNulls();
  const RedrawHold hold(Grid);
  Grid.Rows = 1;
  Grid.Rows = 2;
  int row = 0;
  ShowPairs(search.ByName(), row);
  ShowPairs(search.ByAlias(), row);
  Grid.Rows = row + 2;
  Grid.Row = 1;
}

void frmMergeParties::ShowPairs(const std::vector<AccountPair>& pairs, int& row) {
  for (const AccountPair& pair : pairs) {
    gStd->NextGridRow(row, Grid);
    NumberRow(row);
    Grid.SetTextMatrix(row, col::kCode, std::to_string(pair.Original.Code));
    Grid.SetTextMatrix(row, col::kHead, pair.Original.Head);
    Grid.SetTextMatrix(row, col::kStation, pair.Original.Station);
    Grid.SetTextMatrix(row, col::kDuplicateCode, std::to_string(pair.Duplicate.Code));
    Grid.SetTextMatrix(row, col::kDuplicateHead, pair.Duplicate.Head);
    Grid.SetTextMatrix(row, col::kDuplicateStation, pair.Duplicate.Station);
  }
}

// --- The merge

bool frmMergeParties::Confirmed() const {
  return gStd->AskYesNo(chkAllYears.CheckValue == 1
                            ? "Are you sure to merge these parties in All Years ?"
                            : "Are you sure to merge these parties in Current F.Year ?",
                        "W", IStd::kNo);
}

/// What is typed and not yet left belongs to the list.
bool frmMergeParties::Confirm() {
  if (!Grid.EndEdit() || !Confirmed()) return false;
  {
    const Unbroken whole;
    const BusyJob job("Please wait ...");
    if (chkAllYears.CheckValue == 1) {
      MergeAllYears();
    } else {
      MergeRows(gSession->MainDb());
    }
  }
  gStd->MsgBox("Done");
  return true;
}

void frmMergeParties::MergeRows(CDbLink& year) {
  year.BeginTrans();
  PartyMerge merge(year);
  for (int row = 1; row < Grid.Rows; ++row) {
    merge.Merge({Grid.TextMatrix(row, col::kHead), Grid.TextMatrix(row, col::kStation),
                 Grid.TextMatrix(row, col::kDuplicateHead), Grid.TextMatrix(row, col::kDuplicateStation)});
  }
  year.CommitTrans();
}

void frmMergeParties::MergeAllYears() {
  const std::shared_ptr<FinYear> year = gSession->NewYear();
  year->Init(true);
  const MergeYears years = MergeYears::Around(gSession->Year().StartYear(), *year);
  for (int start = years.First; start <= years.Last; ++start) {
    gApp->BeginBusy("Processing: " + YearName(start) + " ...");
    bool ok = false;
    year->OpenYear(start, ok);
    if (ok) MergeRows(year->Db());
  }
}

}  // namespace quillon
