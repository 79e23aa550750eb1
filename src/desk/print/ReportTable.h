#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/controls/GridModel.h"
#include "host/services/CReportOptions.h"

namespace quillon {

/// A shown column of a report.
struct ReportColumn {
  int Number = 0;  ///< in the grid, from 0
  int Alignment = kAlignLeft;
  int HeadingAlignment = kAlignLeft;
  double ScreenWidth = 0;
  bool Wrap = false;  ///< asked for by the column's options
  bool Justify = false;
};

/// What the commands in the last column of a row ask for.
struct RowCommands {
  bool Rule = false;         ///< "*hline1*": a line under the row
  bool HeadingFont = false;  ///< "*headingfonts*"
  bool PageBreak = false;    ///< "*pagebreak*": a new page after the row
  bool KeepWhole = false;    ///< "*midchk-08*": the row is never divided between pages
};

/// A filled grid as a report prints it: the shown columns and rows, without the commands, and the totals.
class ReportTable {
 public:
  struct FooterRow {
    std::vector<std::string> Cells;  ///< one for each shown column
    long BackColor = Control::kDefaultColor;
  };

  /// The grid must outlive the table.
  ReportTable(const GridModel& grid, const CReportOptions& options);

  const GridModel& Grid() const { return grid_; }
  const std::vector<ReportColumn>& Columns() const { return columns_; }

  /// Grid rows of the titles, and of the body.
  const std::vector<int>& TitleRows() const { return titleRows_; }
  const std::vector<int>& Rows() const { return rows_; }
  const std::vector<FooterRow>& Footer() const { return footer_; }

  /// The text of a grid row in a shown column.
  std::string_view Cell(int row, std::size_t column) const;
  RowCommands Commands(int row) const;

 private:
  void TakeFooter();
  bool LastRowIsFooter() const;

  const GridModel& grid_;
  std::vector<ReportColumn> columns_;
  std::vector<int> titleRows_;
  std::vector<int> rows_;
  std::vector<FooterRow> footer_;
};

}  // namespace quillon
