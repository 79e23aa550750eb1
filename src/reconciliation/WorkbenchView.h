#pragma once

#include "host/services/CReportOptions.h"
#include "reconciliation/WorkbenchAccount.h"

namespace quillon {

/// One of the views that share the workbench's place: a grid and what fills it.
class WorkbenchView {
 public:
  WorkbenchView(WorkbenchAccount& account, CGridPlus& grid) : account_(account), grid_(grid) {}
  WorkbenchView(const WorkbenchView&) = delete;
  WorkbenchView& operator=(const WorkbenchView&) = delete;
  virtual ~WorkbenchView() = default;

  CGridPlus& Grid() const { return grid_; }
  bool IsShown() const { return grid_.Visible; }

  /// Goes on from the current row: to its voucher, or to its cleared date.
  virtual void ZoomRow() {}

  /// The other side of the current row, by the view's own rule; none where there is no row.
  void ShowOtherSide();

  /// Hands the grid to the report, with its title.
  virtual void Report(CReportOptions& options, const std::string& subtitle, bool print);

 protected:
  /// Whose other side a row asks for: the voucher, and on which side the row itself stands.
  struct Sided {
    std::int64_t Voucher = 0;
    Amount Side;
  };
  virtual Sided SidedOf(int /*row*/) const { return {}; }

  /// Opens the voucher that stands in that column of the current row.
  void OpenVoucherOf(int voucherColumn) const;

  WorkbenchAccount& account_;
  CGridPlus& grid_;
};

/// The layout of the account's own statement and one column more, all of them hidden, in the grid's own font
/// and without rows.
void TakeStatementLayout(CGridPlus& grid, const CGridPlus* statement);

}  // namespace quillon
