#include "desk/print/ReportTable.h"

#include "host/controls/CGridPlus.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr std::string_view kKeepWhole = "*midchk-";

struct KnownCommand {
  std::string_view text;
  bool RowCommands::*flag;
};
constexpr KnownCommand kCommands[] = {
    {"*hline1*", &RowCommands::Rule},
    {"*headingfonts*", &RowCommands::HeadingFont},
    {"*pagebreak*", &RowCommands::PageBreak},
};

/// Takes the commands off the head of a text; what is left is the cell's own.
std::string_view TakeCommands(std::string_view text, RowCommands& commands) {
  for (bool found = true; found && !text.empty() && text.front() == '*';) {
    found = false;
    for (const KnownCommand& known : kCommands) {
      if (!text.starts_with(known.text)) continue;
      commands.*known.flag = found = true;
      text.remove_prefix(known.text.size());
    }
    const std::size_t end = text.find('*', 1);
    if (text.starts_with(kKeepWhole) && end != std::string_view::npos) {
      commands.KeepWhole = found = true;
      text.remove_prefix(end + 1);
    }
  }
  return text;
}

/// The grid's numbers 0 to 9 fold into left, centre and right.
int Side(int alignment) {
  if (alignment >= 3 && alignment <= 5) return kAlignCentre;
  return alignment >= 6 && alignment <= 8 ? kAlignRight : kAlignLeft;
}

}  // namespace

ReportTable::ReportTable(const GridModel& grid, const CReportOptions& options) : grid_(grid) {
  for (int col = 0; col < grid.Cols(); ++col) {
    if (!grid.IsColVisible(col)) continue;
    columns_.push_back({col, Side(grid.ColAlignment(col)), Side(grid.HeadingAlignment(col)),
                        static_cast<double>(grid.ColWidth(col)),
                        text::EqualNoCase(options.ColumnOption(col + 1, "Wrap"), "True"),
                        text::EqualNoCase(options.ColumnOption(col + 1, "ColAlign"), "J")});
  }
  for (int row = 0; row < grid.Rows(); ++row) {
    if (grid.IsRowVisible(row)) (row < grid.FixedRows() ? titleRows_ : rows_).push_back(row);
  }
  TakeFooter();
}

std::string_view ReportTable::Cell(int row, std::size_t column) const {
  const int number = columns_[column].Number;
  const std::string_view text = grid_.Cell(row, number);
  RowCommands ignored;
  return number + 1 == grid_.Cols() ? TakeCommands(text, ignored) : text;
}

RowCommands ReportTable::Commands(int row) const {
  RowCommands commands;
  if (grid_.Cols() > 0) TakeCommands(grid_.Cell(row, grid_.Cols() - 1), commands);
  return commands;
}

void ReportTable::TakeFooter() {
  const auto* plus = dynamic_cast<const CGridPlus*>(&grid_);
  if (plus == nullptr) return;
  for (int row = 0; row < plus->Footer.Rows(); ++row) {
    FooterRow& taken = footer_.emplace_back();
    bool empty = true;
    for (const ReportColumn& column : columns_) {
      taken.Cells.push_back(plus->Footer.TextMatrix(row, column.Number));
      empty = empty && taken.Cells.back().empty();
    }
    taken.BackColor = plus->Footer.BackColor(row);
    if (empty) footer_.pop_back();
  }
  if (LastRowIsFooter()) footer_.clear();
}

/// A screen may have put its totals into the body as a last row; they are not said twice.
bool ReportTable::LastRowIsFooter() const {
  if (footer_.size() != 1 || rows_.empty()) return false;
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    if (Cell(rows_.back(), column) != footer_.front().Cells[column]) return false;
  }
  return true;
}

}  // namespace quillon
