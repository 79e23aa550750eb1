#include "entry/frmDataFormSetup.h"

#include <vector>

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/forms/GridColumns.h"
#include "host/forms/Runtime.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

namespace col {

constexpr int kName = 0;
constexpr int kHead = 1;
constexpr int kTitle = 2;
constexpr int kWidth = 3;
constexpr int kCode = 4;
constexpr int kCount = 6;

}  // namespace col

constexpr int kRows = 11;
constexpr int kForms = 9;
constexpr int kFirstPosition = 5;

constexpr int kSave = 0;
constexpr int kCancel = 1;
constexpr int kDeleteRow = 2;
constexpr int kDeleteForm = 3;

constexpr const char* kStem = "COL-";
constexpr const char* kMovedStem = "Col-";

}  // namespace

frmDataFormSetup::frmDataFormSetup()
    : Form("frmDataFormSetup"),
      lblFormType(*this, "lblFormType"),
      cmbFormType(*this, "cmbFormType"),
      lblForm(*this, "lblForm"),
      cmbForm(*this, "cmbForm"),
      lblFormTitle(*this, "lblFormTitle"),
      txtFormTitle(*this, "txtFormTitle"),
      lblGrid(*this, "lblGrid"),
      Grid(*this, "Grid"),
      Command2(*this, "Command2", {0, 1}),
      Command1(*this, "Command1", {kSave, kCancel, kDeleteRow, kDeleteForm}),
      SelGrid1(*this, "SelGrid1") {
  DesignControls();
  Connect();
  ConnectGrid();
}

void frmDataFormSetup::Connect() {
  cmbFormType.Click = [this] { FillForms(); };
  cmbForm.Click = [this] { LoadForm(); };
  Command1(kSave).Click = [this] { Save(); };
  Command1(kCancel).Click = [this] { gRuntime->Unload(*this); };
  Command1(kDeleteRow).Click = [this] { DeleteRow(); };
  Command1(kDeleteForm).Click = [this] { DeleteForm(); };
  Command2(0).Click = [this] { MoveRow(-1); };
  Command2(1).Click = [this] { MoveRow(1); };
}

void frmDataFormSetup::ConnectGrid() {
  Grid.BeforeEdit = [this](int row, int column, bool& cancel, std::string& action) {
    const bool isAhead = row >= kRows || (row > 1 && Grid.Cell(row - 1, col::kCode).empty());
    cancel = isAhead || column == col::kName;
    if (isAhead) action = "Stop";
  };
  Grid.CellGotFocus = [this](int, int column) { OpenHeads(column); };
  Grid.CellEnter = [this](int row, int column) {
    if (column != col::kWidth || !Grid.Cell(row, column).empty()) return;
    Grid.SetTextMatrix(row, column, "10");
    Grid.EditBox.Text = "10";
    Grid.EditBox.SelectAll();
  };
  Grid.ValidateCell = [this](int row, int column, std::string& text, bool&) {
    if (column == col::kHead) CheckHead(row, text);
  };
  Grid.CellLostFocus = [this](int, int) { SelGrid1.Close(); };
  SelGrid1.Selected = [this] { TakeHead(); };
}

void frmDataFormSetup::OnLoad() {
  SetColumns();
  SelGrid1.Load("Select Head,Code,PressHead from V_FAHEADS1 where mbshno not in (130,140)",
                gSession->MainDb(), false, 0);
  for (const int hidden : {1, 2}) SelGrid1.Grid.SetColWidth(hidden, 0);
  cmbFormType.Clear();
  for (const DataFormType& type : DataFormTypes()) cmbFormType.AddItem(type.Name);
  cmbFormType.SetListIndex(0);
}

void frmDataFormSetup::SetColumns() {
  gStd->SetupGrid(Grid);
  Grid.SelectionMode = 0;
  Grid.Cols = col::kCount;
  Grid.Rows = kRows;
  SetColumnsInChars(Grid, {{col::kName, "Col", 8, kAlignLeft},
                           {col::kHead, "A/c", 32, kAlignLeft},
                           {col::kTitle, "Title", 22, kAlignLeft},
                           {col::kWidth, "Width", 8, kAlignRight},
                           {col::kCode, "", 0},
                           {col::kCode + 1, "", 0}});
  NumberRows(kStem);
}

void frmDataFormSetup::NumberRows(const char* stem) {
  for (int row = 1; row < kRows; ++row) Grid.SetTextMatrix(row, col::kName, stem + std::to_string(row));
}

const DataFormType& frmDataFormSetup::Type() const {
  return DataFormTypes()[static_cast<std::size_t>(cmbFormType.ListIndex())];
}

// --- The definition

void frmDataFormSetup::FillForms() {
  cmbForm.Clear();
  for (int form = 1; form <= kForms; ++form) cmbForm.AddItem(Type().FormCode + std::to_string(form));
  cmbForm.SetListIndex(0);
}

void frmDataFormSetup::LoadForm() {
  Grid.CancelEdit();
  txtFormTitle.Text =
      gSession->MainDb().Lookup("EntryForms", "FormTitle", "FormName='" + FormName() + "'").ToText();
  for (int row = 1; row < kRows; ++row) {
    for (int column = col::kHead; column <= col::kCode; ++column) Grid.SetTextMatrix(row, column, "");
  }
  FillColumns();
}

void frmDataFormSetup::FillColumns() {
  CDbLink& db = gSession->MainDb();
  CDataSet columns;
  columns.Open("Select * from EntryFormDetails where FormName='" + FormName() + "' order by ColPosition", db);
  for (int row = 1; !columns.Eof() && row < kRows; columns.MoveNext()) {
    const std::int64_t code = columns.Field("ColPostingCode").ToInteger();
    if (code <= 0 || columns.Field("ColName").ToText() == "AMOUNT") continue;
    Grid.SetTextMatrix(row, col::kCode, std::to_string(code));
    Grid.SetTextMatrix(row, col::kHead, db.Lookup("FAMASTER", "mhd", "mcd=" + std::to_string(code)).ToText());
    Grid.SetTextMatrix(row, col::kTitle, columns.Field("ColTitle").ToText());
    Grid.SetTextMatrix(row, col::kWidth, columns.Field("ColWidthChar").ToText());
    ++row;
  }
}

// --- The account of a column

void frmDataFormSetup::OpenHeads(int column) {
  Grid.EditBox.NumericOnly = column == col::kWidth;
  if (column == col::kHead && !SelGrid1.Visible) SelGrid1.OpenUnder(Grid);
}

/// A text that was not picked names no account.
void frmDataFormSetup::CheckHead(int row, std::string& head) {
  if (head.empty()) {
    Grid.SetTextMatrix(row, col::kCode, "");
  } else if (const std::string picked = Grid.TextMatrix(row, col::kHead); head != picked) {
    gRuntime->Say("No account of the list is \"" + head + "\".");
    head = picked;
  }
}

void frmDataFormSetup::TakeHead() {
  const int line = SelGrid1.Grid.Row;
  Grid.SetTextMatrix(Grid.Row, col::kHead, SelGrid1.Cell(line, 0));
  Grid.SetTextMatrix(Grid.Row, col::kCode, SelGrid1.Cell(line, 1));
}

// --- The buttons

void frmDataFormSetup::OnKeyDown(KeyEvent& key) {
  if (key.Shift != 0 || (key.KeyCode != keys::kF7 && key.KeyCode != keys::kF3)) return;
  const int button = key.KeyCode == keys::kF7 ? kSave : kDeleteRow;
  key.KeyCode = 0;
  Command1(button).Press();
}

bool frmDataFormSetup::HasColumns() const {
  for (int row = 1; row < kRows; ++row) {
    if (!Grid.Cell(row, col::kCode).empty()) return true;
  }
  return false;
}

void frmDataFormSetup::Save() {
  if (!Grid.EndEdit()) return;
  if (Type().IsCashVoucher() && !HasColumns()) {
    gStd->MsgBox("Cash Column not specified, can't save Form without Cash Column", "", "W");
    return;
  }
  SaveForm();
  gRuntime->Unload(*this);
}

void frmDataFormSetup::DeleteDefinition() {
  for (const char* table : {"EntryFormDetails", "EntryForms"}) {
    gSession->FormsDb().Execute("Delete from " + std::string(table) + " Where FormName='" + FormName() + "'");
  }
}

void frmDataFormSetup::SaveForm() {
  const DataFormType& type = Type();
  const std::string form = FormName();
  CDbLink& db = gSession->FormsDb();
  DeleteDefinition();
  db.Execute("Insert Into EntryForms (FormName,FormTitle,BookCode) values ('" + form + "','" +
             txtFormTitle.Text() + "','" + type.BookCode + "')");
  DataFormColumn narration{"NAR1", "Narration", 3, 20};
  DataFormColumn amount{"AMOUNT", "Amount", 4, 10, true};
  if (type.IsCashBill()) {
    narration.Field = "ColAutoIncrement";
    narration.Value = -1;
    amount.Field = "ColPostingCode";
    amount.Value = 1;
  }
  db.Execute(InsertFixedColumn(form, type, {"DATE", "Date", 1, 10}));
  if (!type.IsCashBill()) db.Execute(InsertFixedColumn(form, type, {"PARTY", "Party", 2, 25}));
  db.Execute(InsertFixedColumn(form, type, narration));
  db.Execute(InsertFixedColumn(form, type, amount));
  SaveColumns();
}

/// A column without an account or without a width is left out.
void frmDataFormSetup::SaveColumns() {
  int position = kFirstPosition;
  for (int row = 1; row < kRows; ++row) {
    if (Grid.Cell(row, col::kCode).empty() || Grid.Cell(row, col::kWidth).empty()) continue;
    gSession->FormsDb().Execute(
        "Insert into EntryFormDetails "
        "(FormName,ColName,ColTitle,ColNumeric,ColDrCr,ColPosition,ColWidthChar,ColDecimals,ColTotalRqr,"
        "ColPostingCode) values ('" +
        FormName() + "','" + Grid.TextMatrix(row, col::kName) + "','" + Grid.TextMatrix(row, col::kTitle) +
        "',-1,'" + Type().OtherSide() + "'," + std::to_string(position++) + "," +
        books::SqlNumber(Grid.Cell(row, col::kWidth)) + ",2,-1," +
        books::SqlNumber(Grid.Cell(row, col::kCode)) + ")");
  }
}

void frmDataFormSetup::MoveRow(int by) {
  const int from = Grid.Row;
  const int to = from + by;
  if (from < 1 || to < 1 || to >= Grid.Rows || !Grid.EndEdit()) return;
  std::vector<std::string> cells;
  cells.reserve(static_cast<std::size_t>(Grid.Cols));
  for (int column = 0; column < Grid.Cols; ++column) cells.push_back(Grid.TextMatrix(from, column));
  Grid.RemoveItem(from);
  Grid.AddItem(text::Join(cells, "\t"), to < Grid.Rows ? to : kNoIndex);
  NumberRows(kMovedStem);
  Grid.Row = to;
}

void frmDataFormSetup::DeleteRow() {
  if (Grid.Row < 1) return;
  Grid.CancelEdit();
  Grid.RemoveItem(Grid.Row);
  Grid.Rows = kRows;
  NumberRows(kStem);
}

void frmDataFormSetup::DeleteForm() {
  if (gSession->MainDb().RowExists("Select First 1 VoucherID from FAData where dTrnType='" + FormName() +
                                   "'")) {
    gStd->MsgBox(
        "Can't delete this data form, because transactions relating to this data form found in file : FAData",
        "", "E");
    return;
  }
  if (!gStd->AskYesNo("Are you sure to delete this data form.", "W", 0, "Delete account")) return;
  DeleteDefinition();
  gRuntime->Unload(*this);
}

}  // namespace quillon
