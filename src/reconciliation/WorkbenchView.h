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

  /// Hands the grid to the report, with its title.
  virtual void Report(CReportOptions& options, const std::string& subtitle, bool print);

 protected:
  /// Opens the voucher that stands in that column of the current row.
  void OpenVoucherOf(int voucherColumn) const;

  WorkbenchAccount& account_;
  CGridPlus& grid_;
};

/// The layout of the account's own statement and one column more, all of them hidden, in the grid's own font
/// and without rows.
void TakeStatementLayout(CGridPlus& grid, const CGridPlus* statement);

}  // namespace quillon
