#include "reconciliation/EntriesView.h"

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "books/StoreEntry.h"
#include "host/forms/CDateDialog.h"
#include "host/forms/Progress.h"
#include "host/services/AccountColumns.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

using namespace account_col;

namespace {

constexpr const char* kAskMark =
    "All entries where Cleared on date is not entered shall be filled with the date of transaction "
    "for the given period.\nAre you sure to Mark / Fill cleared on date? ";
constexpr const char* kAskUnmark =
    "Be careful! This will remove cleared on date as entered by you for the given period.\n"
    "Are you sure to Un-Mark / Remove cleared on date? ";

}  // namespace

// --- One date

void EntriesView::BeforeEdit(int row, int col, bool& cancel, std::string& action) const {
  cancel = true;
  if (row < grid_.Rows) {
    if (col != kClearedEdit) return;
    cancel = !EntryOf(row).IsEntry() || grid_.Cell(row, kBook) == books::kOpeningBook;
  }
  if (cancel) action = "Stop";
}

bool EntriesView::IsAccepted(Date date) const { return date >= gSession->Year().StartDate().AddYears(-1); }

void EntriesView::Stored(const books::EntryKey& entry, int row, const std::string& dateText) {
  marked_.Recount(grid_, row);
  account_.Echo(entry, dateText);
  Remember(entry, dateText);
}

void EntriesView::Remember(const books::EntryKey& entry, const std::string& dateText) {
  ownDates_[entry] = {dateText, account_.MarksRead()};
}

void EntriesView::TakeStored(const std::vector<ClearedDates::Change>& changes) {
  DatedView::TakeStored(changes);
  for (const ClearedDates::Change& change : changes) {
    for (const int row : RowsOf(change.Entry)) marked_.Recount(grid_, row);
    account_.Echo(change.Entry, change.After.Text());
    Remember(change.Entry, change.After.Text());
  }
}

void EntriesView::AfterEdit(int row) {
  if (TakeEdit()) {
    marked_.Recount(grid_, row);
    const FinYear& year = gSession->Year();
    const Date date = Date::Parse(grid_.Cell(row, kClearedEdit));
    if (!date.IsEmpty() && (date < year.StartDate() || date > year.EndDate()) && ShouldWarn()) {
      gStd->MsgBox("Be careful, Date does not fall in current F.Year", "", "I");
    }
  }
  UpdateMarkedTotals();
}

// --- Many dates

void EntriesView::MassMark(bool unmark) {
  try {
    CDateDialog period;
    period.SingleDate(false);
    period.SetDate1(account_.First());
    period.SetDate2(account_.Last());
    if (!period.Show()) return;
    const std::string title =
        period.Date1().Format("dd/MM/yyyy") + " to " + period.Date2().Format("dd/MM/yyyy");
    if (!gStd->AskYesNo(unmark ? kAskUnmark : kAskMark, "Q", IStd::kNo, title)) return;
    // Neither the footer nor the statement follows: both stand as they were until they are refreshed.
    marked_.Forget();
    const ClearedDates::Act act(account_.Dates);
    Progress progress(unmark ? "Removing dates" : "Filling dates", grid_.Rows - 1);
    std::string day;
    Date date;
    for (int row = 1; row < grid_.Rows; ++row, progress.Step()) {
      const bool isDated = !grid_.Cell(row, kClearedEdit).empty();
      if ((isDated && !unmark) || grid_.Cell(row, kDate).empty()) continue;
      // The rows of a day follow one another.
      if (grid_.Cell(row, kDate) != day) date = Date::Parse(day = grid_.Cell(row, kDate));
      if (date < period.Date1() || date > period.Date2()) continue;
      if (grid_.IsRowVisible(row) && EntryOf(row).IsEntry()) MassMarkRow(row, unmark ? Date() : date);
    }
  } catch (const std::exception& error) {
    gApp->ReportError(error, &account_.Screen(), "MassMarking");
  }
}

void EntriesView::MassMarkRow(int row, Date date) {
  const books::EntryKey entry = EntryOf(row);
  account_.StoreClearedDate(entry, Date::Parse(grid_.Cell(row, kClearedEdit)), date);
  grid_.SetTextMatrix(row, kClearedEdit, date.Text());
  Remember(entry, date.Text());
}

// --- The returned cheque

void EntriesView::StoreReturned() {
  const std::int64_t voucher = ValInteger(grid_.Cell(grid_.Row, kVoucherId));
  if (!returned_.Visible || !grid_.Visible || voucher == 0) return;
  const std::string mark = returned_.CheckValue != 0 ? "Y" : "N";
  std::int64_t documents = 0;
  try {
    documents = books::StoreEntry(
        gSession->Year().Db(), voucher,
        "UPDATE FADOCS SET CHQRETURN='" + mark + "' WHERE VOUCHERID=" + books::SqlNumber(voucher));
  } catch (...) {
    ShowReturned();  // as the books still have it
    throw;
  }
  if (documents == 0) {
    ShowReturned();
    gStd->MsgBox("This entry has no document to mark.", "", "W");
    return;
  }
  grid_.SetTextMatrix(grid_.Row, kReturned, mark);
  ownReturned_[voucher] = {mark, account_.MarksRead()};
  grid_.SetFocus();
}

}  // namespace quillon
