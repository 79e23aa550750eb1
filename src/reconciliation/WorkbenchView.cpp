#include "reconciliation/WorkbenchView.h"

#include <algorithm>

#include "host/services/AccountColumns.h"
#include "host/services/IReports.h"
#include "host/values/Text.h"

namespace quillon {

void WorkbenchView::Report(CReportOptions& options, const std::string& subtitle, bool print) {
  constexpr int kRuling = 3;
  gReports->ShowGrid(grid_, &options, grid_.Title, subtitle, kRuling, print);
}

void WorkbenchView::ShowOtherSide() {
  const bool hasRow = grid_.Row >= 1 && grid_.Row < grid_.Rows;
  const Sided sided = hasRow ? SidedOf(grid_.Row) : Sided();
  account_.ShowOtherSide(sided.Voucher, sided.Side);
}

void WorkbenchView::OpenVoucherOf(int voucherColumn) const {
  if (grid_.Row >= 1) account_.OpenVoucher(ValInteger(grid_.Cell(grid_.Row, voucherColumn)));
}

void TakeStatementLayout(CGridPlus& grid, const CGridPlus* statement) {
  grid.Rows = 1;
  if (statement != nullptr) {
    const Font font = grid.Font;
    grid.CopyLayout(*statement);
    grid.Font = font;
  }
  grid.Cols = std::max(grid.Cols(), account_col::kReturned + 1) + (statement != nullptr ? 1 : 0);
  grid.HideAllColumns();
  for (int col = 0; col < grid.Cols; ++col) grid.SetTextMatrix(0, col, "");
}

}  // namespace quillon
