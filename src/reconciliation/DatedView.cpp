#include "reconciliation/DatedView.h"

#include "host/controls/RedrawHold.h"
#include "host/forms/BusyJob.h"
#include "host/forms/BusyPointer.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"

namespace quillon {

DatedView::DatedView(WorkbenchAccount& account, CGridPlus& grid, const Columns& columns)
    : WorkbenchView(account, grid), columns_(columns) {
  grid_.Changed = [this] { cellEdited_ = true; };
  grid_.ValidateCell = [this](int row, int col, std::string& text, bool& cancel) {
    ValidateCell(row, col, text, cancel);
  };
  grid_.Pasting = [this](bool begins) { Pasting(begins); };
}

books::EntryKey DatedView::EntryOf(int row) const {
  return books::EntryKey::OfRow(grid_, row, columns_.Voucher, columns_.Line);
}

bool DatedView::TakeEdit() { return std::exchange(cellEdited_, false); }

/// All dates of a pasted column are one act.
void DatedView::Pasting(bool begins) {
  warned_ = false;
  pasting_.reset();
  if (begins) pasting_.emplace(account_.Dates);
}

void DatedView::ValidateCell(int row, int col, std::string& text, bool& cancel) {
  if (col != columns_.Cleared || !cellEdited_) return;
  const bool isPasted = grid_.IsPasting();
  if (text == "00" && row > 1 && !isPasted) {
    FillDown(row, text);
    return;
  }
  if (text == "=" && row > 1 && !isPasted) {
    text = EntryOf(row - 1).IsEntry() ? grid_.TextMatrix(row - 1, col) : "";
  } else if (!text.empty()) {
    const Date date = Date::Parse(gStd->ParseDateText(text, grid_.TextMatrix(row, columns_.Day)));
    if (text == "=" || date.IsEmpty() || !IsAccepted(date)) {
      gStd->MsgBox("Invalid Date", "", "E");
      cancel = true;
      return;
    }
    text = date.Text();
  }
  Save(row, text);
}

void DatedView::Save(int row, const std::string& dateText) {
  const Date date = Date::Parse(dateText);
  if (row < 1) throw SubscriptError("row " + std::to_string(row));
  if (date.IsEmpty() && !dateText.empty()) throw HostError("This is no date: " + dateText);
  const books::EntryKey entry = EntryOf(row);
  account_.StoreClearedDate(entry, Date::Parse(grid_.TextMatrix(row, columns_.Cleared)), date);
  grid_.SetTextMatrix(row, columns_.Cleared, date.Text());
  Stored(entry, row, date.Text());
}

std::vector<int> DatedView::RowsOf(const books::EntryKey& entry) {
  if (!rows_) rows_ = std::make_unique<books::EntryRows>(grid_, columns_.Voucher, columns_.Line);
  return rows_->Find(entry);
}

void DatedView::TakeStored(const std::vector<ClearedDates::Change>& changes) {
  const RedrawHold hold(grid_);
  for (const ClearedDates::Change& change : changes) {
    for (const int row : RowsOf(change.Entry))
      grid_.SetTextMatrix(row, columns_.Cleared, change.After.Text());
  }
}

bool DatedView::IsSource(int row) const {
  return grid_.IsRowVisible(row) && EntryOf(row).IsEntry() && !grid_.Cell(row, columns_.Cleared).empty();
}

void DatedView::FillDown(int row, std::string& text) {
  const BusyPointer pointer;
  int from = row - 1;
  while (from > 0 && !IsSource(from)) --from;
  if (from == 0) {
    text = grid_.TextMatrix(row, columns_.Cleared);
    return;
  }
  grid_.EndEdit();
  const BusyJob job;
  const std::string date = grid_.TextMatrix(from, columns_.Cleared);
  const ClearedDates::Act act(account_.Dates);
  Progress progress("Filling dates", row - from);
  for (int next = from + 1; next <= row; ++next, progress.Step()) {
    if (grid_.IsRowVisible(next) && EntryOf(next).IsEntry()) Save(next, date);
  }
}

}  // namespace quillon
