#include "host/forms/GridRows.h"

#include "host/services/IStd.h"

namespace quillon {

void ShowTotals(CGridPlus& grid, int row, int titleCol, const std::string& title,
                std::initializer_list<std::pair<int, Amount>> sums) {
  if (grid.Footer.Rows() <= row) grid.Footer.SetRows(row + 1);
  grid.Footer.SetTextMatrix(row, titleCol, title);
  for (const auto& [col, sum] : sums) grid.Footer.SetTextMatrix(row, col, gStd->FormatAmount(sum, "C2"));
}

}  // namespace quillon
