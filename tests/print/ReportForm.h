#pragma once

#include <string>
#include <vector>

#include "host/controls/CGridPlus.h"
#include "host/controls/MSHFlexGrid.h"
#include "host/forms/Form.h"

namespace quillon {

/// A screen with grids to report.
class ReportForm : public Form {
 public:
  ReportForm() : Form("ReportForm", Origin::Desk) {}

  CGridPlus Statement{*this, "Statement"};
  MSHFlexGrid Letter{*this, "Letter"};
  MSHFlexGrid Labels{*this, "Labels"};

  static void SetColumn(GridModel& grid, int column, const std::string& title, long width, int alignment) {
    grid.SetTextMatrix(0, column, title);
    grid.SetColWidth(column, width);
    grid.SetColAlignment(column, alignment);
  }

  static void SetRow(GridModel& grid, int row, const std::vector<std::string>& texts) {
    if (row >= grid.Rows()) grid.Rows = row + 1;
    for (std::size_t i = 0; i < texts.size(); ++i) grid.SetTextMatrix(row, static_cast<int>(i), texts[i]);
  }

  /// A pass book of `entries` rows after a section heading: date, book, narration, two amounts, balance, and
  /// a hidden last column for commands. Totals stand in the footer.
  void FillStatement(int entries) {
    CGridPlus& grid = Statement;
    grid.Cols = 8;
    grid.HideAllColumns();
    SetColumn(grid, 0, "Date", 1400, kAlignLeft);
    SetColumn(grid, 1, "Book", 600, kAlignCentre);
    SetColumn(grid, 2, "Narration", 6000, kAlignLeft);
    SetColumn(grid, 3, "Dr.(Withdrawls)", 1700, kAlignRight);
    SetColumn(grid, 4, "Cr.(Deposits)", 1700, kAlignRight);
    SetColumn(grid, 5, "Balance", 2100, kAlignRight);
    grid.Rows = 2;
    SetRow(grid, 1, {"01-Apr-2024", "", "Amounts Debited by us only:-", "", "", "N I L  "});
    grid.PaintRow(1, {0, 6, 0xC0FFFF, Control::kDefaultColor});
    for (int i = 1; i <= entries; ++i) SetRow(grid, i + 1, Entry(i));
    grid.SetTextMatrix(entries + 1, 7, "*hline1*");
    grid.Footer.SetRows(1);
    const std::vector<std::string> totals = {
        "", "", "Totals", "9,87,65,432.10", "12,345.67", "9,87,53,086.43 Cr."};
    for (std::size_t i = 0; i < totals.size(); ++i)
      grid.Footer.SetTextMatrix(0, static_cast<int>(i), totals[i]);
  }

 private:
  static std::vector<std::string> Entry(int number) {
    const std::string amount = number % 7 == 0 ? "12,34,567.00" : std::to_string(100 + number) + ".50";
    std::string narration = "By cheque " + std::to_string(400000 + number) + " Harbour Mills Limited";
    if (number % 5 == 0)
      narration +=
          ", being payment against their bills 1123/24 to 1187/24 of the month for yarn "
          "and packing material received at the Kandla godown";
    const bool debit = number % 3 != 0;
    return {(number % 28 < 9 ? "0" : "") + std::to_string(number % 28 + 1) + "-Apr-2024",
            "B1",
            narration,
            debit ? amount : "",
            debit ? "" : amount,
            std::to_string(1000 + number) + ",567.00 Dr."};
  }
};

}  // namespace quillon
