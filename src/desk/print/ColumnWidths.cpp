#include "desk/print/ColumnWidths.h"

#include <algorithm>
#include <numeric>

namespace quillon {

namespace {

constexpr double kShortText = 24;  // digits: a column whose texts are shorter is never wrapped
constexpr double kLeastText = 24;  // digits that a wrapped column keeps

/// The widest of the parts that `separator` divides a text into.
double WidestPart(std::string_view text, char separator, bool bold, const ReportMeasure& measure) {
  double widest = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    widest = std::max(widest, measure(text.substr(0, end), bold));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return widest;
}

double WidestCell(const ReportTable& table, std::size_t column, const std::vector<bool>& bold,
                  const ReportMeasure& measure) {
  double widest = 0;
  for (std::size_t i = 0; i < table.Rows().size(); ++i) {
    widest = std::max(widest, WidestPart(table.Cell(table.Rows()[i], column), '\n', bold[i], measure));
  }
  for (const ReportTable::FooterRow& row : table.Footer())
    widest = std::max(widest, WidestPart(row.Cells[column], '\n', true, measure));
  return widest;
}

}  // namespace

std::vector<double> LeastWidths(const ReportTable& table, const ReportMeasure& measure) {
  std::vector<bool> bold;
  for (const int row : table.Rows()) bold.push_back(table.Commands(row).HeadingFont);
  const double digit = measure("9", false);
  std::vector<double> least;
  for (std::size_t i = 0; i < table.Columns().size(); ++i) {
    const ReportColumn& column = table.Columns()[i];
    double width = WidestCell(table, i, bold, measure);
    const bool wraps =
        column.Wrap || column.Justify || (column.Alignment == kAlignLeft && width > kShortText * digit);
    if (wraps) width = std::min(width, kLeastText * digit);
    for (const int row : table.TitleRows())
      width = std::max(width, WidestPart(table.Cell(row, i), ' ', true, measure));
    least.push_back(width);
  }
  return least;
}

std::vector<double> ShareWidth(const ReportTable& table, const std::vector<double>& least, double width) {
  std::vector<double> shares = least;
  const double needed = std::accumulate(least.begin(), least.end(), 0.0);
  if (needed >= width) {
    for (double& share : shares) share *= width / needed;
    return shares;
  }
  std::vector<bool> held(least.size());
  for (bool again = true; again;) {
    again = false;
    double left = width;
    double screen = 0;
    for (std::size_t i = 0; i < least.size(); ++i) {
      if (held[i]) left -= least[i];
      if (!held[i]) screen += table.Columns()[i].ScreenWidth;
    }
    for (std::size_t i = 0; i < least.size(); ++i) {
      if (held[i]) continue;
      shares[i] = left * table.Columns()[i].ScreenWidth / screen;
      if (shares[i] >= least[i]) continue;
      shares[i] = least[i];
      held[i] = again = true;
    }
  }
  return shares;
}

}  // namespace quillon
