#include "reconciliation/EntriesView.h"

#include <algorithm>

#include "books/BooksNames.h"
#include "host/forms/GridFill.h"
#include "host/forms/Progress.h"
#include "host/forms/ScreenForm.h"
#include "host/services/AccountColumns.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

using namespace account_col;

namespace {

constexpr long kRowHeight = 350;
constexpr long kReturnedColor = 0x5EAEFF;

constexpr int kMarkedOnly = 1;
constexpr int kUnmarkedOnly = 2;

}  // namespace

EntriesView::EntriesView(WorkbenchAccount& account, CGridPlus& grid, ComboBox& filter, CheckBox& returned,
                         const Control& plain)
    : DatedView(account, grid, {kVoucherId, kVchSubNo, kDate, kClearedEdit}),
      filter_(filter),
      returned_(returned),
      plain_(plain) {
  grid_.BeforeEdit = [this](int row, int col, bool& cancel, std::string& action) {
    BeforeEdit(row, col, cancel, action);
  };
  grid_.AfterEdit = [this](int row, int) { AfterEdit(row); };
  grid_.RowChange = [this](int row) { RowChange(row); };
  grid_.KeyDown = [this](KeyEvent& key) { KeyDown(key); };
  grid_.EditKeyDown = [this](int, int, KeyEvent& key) { KeyDown(key); };
  filter_.Click = [this] {
    if (!filter_.Visible || !grid_.EndEdit()) return;
    Update();
    // The rows are others now, so the strip and the returned mark must follow the cursor.
    grid_.Row = 1;
    grid_.Col = kClearedEdit;
  };
  returned_.Click = [this] { StoreReturned(); };
}

void EntriesView::FillFilter() {
  filter_.Clear();
  for (const char* filter : {"All Entries", "Marked only", "Unmarked only"}) filter_.AddItem(filter);
  filter_.SetListIndex(0);
}

void EntriesView::LetGo() {
  LetRowsGo();
  ownDates_.clear();
  ownReturned_.clear();
}

// --- The rows

void EntriesView::Update() {
  try {
    GridFill fill(grid_, Title());
    SetColumns();
    CopyRows();
    ShowTotals();
    ShowMarkedTotals();
    fill.Done();
  } catch (const std::exception& error) {
    gApp->ReportError(error, &account_.Screen(), "UpdateGrid");
  }
  grid_.Visible = true;
  filter_.Visible = true;
}

std::string EntriesView::Title() const {
  switch (filter_.ListIndex()) {
    case kMarkedOnly:
      return "Reconciliation Workings ( Filter: Marked Entries )";
    case kUnmarkedOnly:
      return "Reconciliation Workings ( Filter: Unmarked Entries )";
    default:
      return "Reconciliation Workings";
  }
}

void EntriesView::SetColumns() {
  TakeStatementLayout(grid_, account_.Statement());
  if (gSession->Firm().Parameter(CFirm::kSerialColumn) == "Yes") {
    SetColumnsInChars(grid_, {{kSerial, "Sr. No.", 5, kAlignCentre}});
  }
  SetColumnsInChars(grid_, {
                               {kDate, "Date", 12, kAlignLeft},
                               {kBook, "Book", 4, kAlignCentre},
                               {kNarration, "Narration", 25, kAlignLeft},
                               {kDebit, "Debit", 11, kAlignRight},
                               {kCredit, "Credit", 11, kAlignRight},
                               {kBalance, "Balance", 14, kAlignRight},
                               {kClearedEdit, "Cleared On", 12, kAlignLeft},
                           });
  grid_.SetColEditable(kClearedEdit, true);
  grid_.Clear();
}

void EntriesView::CopyRows() {
  marked_.Forget();
  LetRowsGo();
  const int filter = filter_.ListIndex();
  const CGridPlus* const statement = account_.Statement();
  const int sourceRows = statement != nullptr ? statement->Rows() : 1;
  grid_.Rows = std::max(sourceRows, 2);
  Progress progress("Taking over the entries", grid_);
  int row = 0;
  for (int source = 1; source < sourceRows; ++source, progress.Step()) {
    const bool cleared = !ClearedOn(source).empty();
    if ((filter == kMarkedOnly && !cleared) || (filter == kUnmarkedOnly && cleared)) continue;
    if (statement->IsRowVisible(source)) CopyRow(++row, source);
  }
  grid_.Rows = std::max(row + 1, 2);
  grid_.SetRowHeight(0, kRowHeight);
}

void EntriesView::CopyRow(int row, int source) {
  const int last = grid_.Cols - 1;
  const std::string returned = ReturnedAt(source);
  grid_.CopyRow(row, *account_.Statement(), source);
  grid_.SetTextMatrix(row, kSerial, std::to_string(row));
  grid_.SetTextMatrix(row, kClearedOn, ClearedOn(source));
  grid_.SetTextMatrix(row, kClearedEdit, grid_.Cell(row, kClearedOn));
  grid_.SetTextMatrix(row, kReturned, returned);
  grid_.SetTextMatrix(row, last, std::to_string(source));
  grid_.SetRowHeight(row, kRowHeight);
  if (returned == "Y") gStd->SetRowColors(grid_, row, 0, last, kReturnedColor, Control::kDefaultColor);
}

/// The statement's row as it stands, unless something newer was stored from here.
std::string EntriesView::ClearedOn(int source) const {
  const CGridPlus& statement = *account_.Statement();
  if (!ownDates_.empty()) {
    const auto own = ownDates_.find(books::EntryKey::OfRow(statement, source, kVoucherId, kVchSubNo));
    if (own != ownDates_.end() && IsOwnNewer(own->second)) return own->second.Text;
  }
  return statement.TextMatrix(source, kClearedOn);
}

std::string EntriesView::ReturnedAt(int source) const {
  const CGridPlus& statement = *account_.Statement();
  if (!ownReturned_.empty()) {
    const auto own = ownReturned_.find(ValInteger(statement.Cell(source, kVoucherId)));
    if (own != ownReturned_.end() && IsOwnNewer(own->second)) return own->second.Text;
  }
  return statement.TextMatrix(source, kReturned);
}

// --- The totals

void EntriesView::ShowTotals() {
  const CGridPlus* const statement = account_.Statement();
  grid_.Footer.SetRows(2);
  grid_.Footer.SetTextMatrix(0, kNarration, "Totals");
  for (const int col : {kDebit, kCredit, kBalance}) {
    grid_.Footer.SetTextMatrix(0, col, statement != nullptr ? statement->Footer.TextMatrix(0, col) : "");
  }
}

void EntriesView::UpdateMarkedTotals() {
  if (grid_.Complete) ShowMarkedTotals();
}

void EntriesView::ShowMarkedTotals() {
  marked_.Update(grid_);
  const Amount debits = marked_.Debits();
  const Amount credits = marked_.Credits();
  const std::string difference = credits > debits ? gStd->FormatAmount(credits - debits, "C2") + " Cr."
                                                  : gStd->FormatAmount(debits - credits, "C2") + " Dr.";
  grid_.Footer.SetTextMatrix(1, kNarration, "Totals (O.Bal / Marked Entries)");
  grid_.Footer.SetTextMatrix(1, kDebit, gStd->FormatAmount(debits, "C2"));
  grid_.Footer.SetTextMatrix(1, kCredit, gStd->FormatAmount(credits, "C2"));
  grid_.Footer.SetTextMatrix(1, kBalance, difference);
}

// --- On the screen

void EntriesView::Show() {
  grid_.Visible = true;
  filter_.Visible = true;
  ShowReturned();
  grid_.SetFocus();
}

void EntriesView::Hide() {
  grid_.Visible = false;
  filter_.Visible = false;
  returned_.Visible = false;
}

void EntriesView::PutCursorOnLastRow() {
  if (!grid_.Visible) return;
  const bool openingOnly = grid_.Cell(1, kBookCode) == books::kOpeningBook && grid_.Rows < 3;
  if (openingOnly) return;
  grid_.Row = grid_.Rows - 1;
  grid_.Col = kClearedEdit;
}

void EntriesView::ZoomRow() { OpenVoucherOf(kVoucherId); }

void EntriesView::RowChange(int row) {
  ForgetEdit();
  if (row < 1) return;
  ShowOtherSide();
  ShowReturned();
}

/// Read as plain numbers, so up to the first comma.
WorkbenchView::Sided EntriesView::SidedOf(int row) const {
  return {ValInteger(grid_.Cell(row, kVoucherId)),
          Amount::OfText(grid_.Cell(row, kDebit)) - Amount::OfText(grid_.Cell(row, kCredit))};
}

/// The box shows the row under the cursor; while it is hidden, setting it stores nothing.
void EntriesView::ShowReturned() {
  returned_.Visible = false;
  if (!grid_.Visible || grid_.Row < 1 || ValInteger(grid_.Cell(grid_.Row, kVoucherId)) == 0) return;
  const bool isReturned = grid_.Cell(grid_.Row, kReturned) == "Y";
  returned_.CheckValue = isReturned ? 1 : 0;
  returned_.BackColor = isReturned ? kReturnedColor : plain_.BackColor();
  returned_.Visible = true;
}

void EntriesView::KeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kEnter || key.Shift != keys::kCtrl || grid_.Col != kClearedEdit) return;
  key.KeyCode = 0;
  ZoomRow();
}

}  // namespace quillon
