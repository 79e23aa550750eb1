#include "reconciliation/EntriesView.h"

#include "entry/AmountRange.h"
#include "entry/frmAcFilter2.h"
#include "host/controls/RedrawHold.h"
#include "host/forms/ScreenForm.h"
#include "host/services/AccountColumns.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

using namespace account_col;

namespace {

constexpr long kRowHeight = 350;

bool IsWithin(Date day, Date first, Date last) {
  return (first.IsEmpty() || day >= first) && (last.IsEmpty() || day <= last);
}

}  // namespace

void EntriesView::Filter() {
  if (!grid_.Visible || !grid_.EndEdit()) return;
  try {
    const auto filter = std::make_shared<frmAcFilter2>();
    filter->Date1 = account_.First();
    filter->Date2 = account_.Last();
    gStd->ShowDialog(filter, account_.Screen().Self());
    if (filter->Cancelled) return;
    if (filter->IsOpen()) {
      grid_.Title = "";
      Update();
    } else {
      ShowFiltered(*filter);
    }
    // The strip and the returned mark follow the cursor to a row that is to be seen.
    const int seen = grid_.VisibleRowFrom(1, 1);
    if (seen > 0) grid_.Row = seen;
  } catch (const std::exception& error) {
    gApp->ReportError(error, &account_.Screen(), "Filter");
  }
}

void EntriesView::ShowFiltered(const frmAcFilter2& filter) {
  const RedrawHold hold(grid_);
  grid_.SetRowHeight(0, kRowHeight);
  ShowSide(filter.FilterTrn);
  Amount debits;
  Amount credits;
  for (int row = 1; row < grid_.Rows; ++row) {
    const bool stays = IsLetThrough(filter, row);
    grid_.SetRowHeight(row, stays ? kRowHeight : 0);
    if (!stays) continue;
    const Amount difference =
        gStd->ParseAmount(grid_.Cell(row, kDebit)) - gStd->ParseAmount(grid_.Cell(row, kCredit));
    (difference < Amount() ? credits : debits) += difference.Abs();
  }
  grid_.Footer.SetTextMatrix(0, kDebit, gStd->FormatAmount(debits, "c2"));
  grid_.Footer.SetTextMatrix(0, kCredit, gStd->FormatAmount(credits, "c2"));
  grid_.Title = "Filter: " + filter.FilterTxt;
}

/// The column of the other side and the balance are of no use beside one side alone.
void EntriesView::ShowSide(const std::string& side) {
  SetColumnsInChars(grid_, {{kDebit, "Debit", side == "Cr" ? 0.0 : 11.0, kAlignRight},
                            {kCredit, "Credit", side == "Dr" ? 0.0 : 11.0, kAlignRight},
                            {kBalance, "Balance", side.empty() ? 14.0 : 0.0, kAlignRight}});
}

bool EntriesView::IsLetThrough(const frmAcFilter2& filter, int row) const {
  const Amount debit = gStd->ParseAmount(grid_.Cell(row, kDebit));
  const Amount credit = gStd->ParseAmount(grid_.Cell(row, kCredit));
  if (!IsWithin(Date::Parse(grid_.TextMatrix(row, kDate)), filter.Date1, filter.Date2)) return false;
  if (filter.FilterTrn == "Dr" && grid_.Cell(row, kDebit).empty()) return false;
  if (filter.FilterTrn == "Cr" && grid_.Cell(row, kCredit).empty()) return false;
  const std::string book = "*" + grid_.TextMatrix(row, kBook) + "*";
  if (!filter.FilterBook.empty() && filter.FilterBook.find(book) == std::string::npos) return false;
  if (!debit.IsZero() && !AmountRange{filter.Amt1, filter.Amt2}.Contains(debit)) return false;
  if (!credit.IsZero() && !AmountRange{filter.Amt3, filter.Amt4}.Contains(credit)) return false;
  if (filter.FilterNar.empty()) return true;
  const std::string narration = text::Lower(grid_.TextMatrix(row, kNarration));
  return narration.find(text::Lower(filter.FilterNar)) != std::string::npos;
}

}  // namespace quillon
