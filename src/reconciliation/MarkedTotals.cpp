#include "reconciliation/MarkedTotals.h"

#include "books/BooksNames.h"
#include "host/controls/GridModel.h"
#include "host/services/AccountColumns.h"
#include "host/services/IStd.h"

namespace quillon {

using namespace account_col;

bool IsMarked(const GridModel& grid, int row) {
  return !grid.Cell(row, kClearedEdit).empty() || grid.Cell(row, kBook) == books::kOpeningBook;
}

void MarkedTotals::Count(const GridModel& grid, int row, bool marked) {
  const Amount debit = gStd->ParseAmount(grid.Cell(row, kDebit));
  const Amount credit = gStd->ParseAmount(grid.Cell(row, kCredit));
  debits_ += marked ? debit : -debit;
  credits_ += marked ? credit : -credit;
  counted_[static_cast<std::size_t>(row)] = marked;
}

void MarkedTotals::Recount(const GridModel& grid, int row) {
  if (!known_) return;
  const bool marked = IsMarked(grid, row);
  if (marked != counted_[static_cast<std::size_t>(row)]) Count(grid, row, marked);
}

void MarkedTotals::Update(const GridModel& grid) {
  if (known_) return;
  debits_ = credits_ = Amount();
  counted_.assign(static_cast<std::size_t>(grid.Rows()), false);
  for (int row = 1; row < grid.Rows; ++row) {
    if (IsMarked(grid, row)) Count(grid, row, true);
  }
  known_ = true;
}

}  // namespace quillon
