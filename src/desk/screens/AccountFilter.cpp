#include "desk/screens/AccountFilter.h"

#include <vector>

#include "books/EntryRows.h"
#include "desk/screens/frmAccount.h"
#include "host/data/CDataSet.h"
#include "host/services/AccountColumns.h"
#include "host/services/host_services.h"

namespace quillon {

namespace col = account_col;

bool AccountFilter::Ask() {
  if (!dialog_ || !dialog_->IsLoaded()) dialog_ = statement_.ModuleScreen("acfilter");
  if (!dialog_) return false;
  gStd->ShowDialog(dialog_, statement_.Self());
  if (dialog_->Get("Cancelled").ToFlag()) return false;
  condition_ = dialog_->Get("FilterCnd").ToText();
  words_ = dialog_->Get("FilterTxt").ToText();
  return true;
}

/// The rows stay, so that each goes on showing the balance that the account had after it.
AccountFilter::Sums AccountFilter::HideRows(GridModel& grid) const {
  const books::EntryRows rows(grid, col::kVoucherId, col::kVchSubNo);
  std::vector<bool> kept(static_cast<std::size_t>(grid.Rows()));
  Sums sums;
  CDataSet entries;
  for (entries.Open(
           "Select a.VoucherID,a.dVchSubNo,a.dAmt from (Select f.*,n.Narration from FAData f left join "
           "FANar n on f.NarrationID=n.NarrationID) a where " +
               statement_.EntriesCondition() + condition_,
           gSession->MainDb());
       !entries.Eof(); entries.MoveNext()) {
    const books::EntryKey entry{entries.Field(std::size_t{0}).ToInteger(),
                                entries.Field(std::size_t{1}).ToInteger()};
    for (const int row : rows.Find(entry)) kept[static_cast<std::size_t>(row)] = true;
    const Amount amount = entries.Field(std::size_t{2}).ToAmount();
    (amount < Amount() ? sums.Credits : sums.Debits) += amount.Abs();
  }
  for (int row = 1; row < grid.Rows; ++row) {
    if (!kept[static_cast<std::size_t>(row)]) grid.SetRowHeight(row, 0);
  }
  return sums;
}

}  // namespace quillon
