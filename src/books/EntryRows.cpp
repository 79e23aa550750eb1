#include "books/EntryRows.h"

#include <algorithm>

#include "host/controls/GridModel.h"
#include "host/values/Text.h"

namespace quillon::books {

EntryKey EntryKey::OfRow(const GridModel& grid, int row, int voucherCol, int lineCol) {
  return {ValInteger(grid.Cell(row, voucherCol)), ValInteger(grid.Cell(row, lineCol))};
}

EntryRows::EntryRows(const GridModel& grid, int voucherCol, int lineCol) {
  rows_.reserve(static_cast<std::size_t>(grid.Rows()));
  for (int row = grid.FixedRows; row < grid.Rows; ++row) {
    const EntryKey key = EntryKey::OfRow(grid, row, voucherCol, lineCol);
    if (key.IsEntry()) rows_.emplace(key, row);
  }
}

std::vector<int> EntryRows::Find(const EntryKey& key) const {
  std::vector<int> found;
  const auto [first, last] = rows_.equal_range(key);
  for (auto row = first; row != last; ++row) found.push_back(row->second);
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace quillon::books
