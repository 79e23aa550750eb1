#include "host/controls/MSChartDataGrid.h"

#include <algorithm>

#include "host/values/Errors.h"

namespace quillon {

namespace {

std::size_t Place(int number, int count, const char* what) {
  if (number < 1 || number > count)
    throw SubscriptError(std::string("chart ") + what + " " + std::to_string(number));
  return static_cast<std::size_t>(number - 1);
}

std::string LabelOf(const std::map<int, std::string>& labels, int label) {
  const auto found = labels.find(label);
  return found == labels.end() ? std::string() : found->second;
}

std::string Composite(const std::map<int, std::string>& labels) {
  std::string text;
  for (auto label = labels.rbegin(); label != labels.rend(); ++label) {
    if (label->second.empty()) continue;
    text += (text.empty() ? "" : " ") + label->second;
  }
  return text;
}

}  // namespace

void MSChartDataGrid::SetSize(int rowLabelCount, int columnLabelCount, int rowCount, int columnCount) {
  if (std::min({rowLabelCount, columnLabelCount, rowCount, columnCount}) < 0)
    throw SubscriptError("chart size");
  rowLabels_ = rowLabelCount;
  columnLabels_ = columnLabelCount;
  columns_ = columnCount;
  const auto rows = static_cast<std::size_t>(rowCount);
  rows_.assign(rows, std::vector<Figure>(static_cast<std::size_t>(columnCount)));
  rowTexts_.assign(rows, {});
  columnTexts_.assign(static_cast<std::size_t>(columnCount), {});
  changed_();
}

void MSChartDataGrid::DeleteRows(int row, int count) {
  if (row < 1 || count < 0) throw SubscriptError("chart row " + std::to_string(row));
  const int first = std::min(row - 1, RowCount());
  const int behind = std::min(first + count, RowCount());
  rows_.erase(rows_.begin() + first, rows_.begin() + behind);
  rowTexts_.erase(rowTexts_.begin() + first, rowTexts_.begin() + behind);
  changed_();
}

const MSChartDataGrid::Figure& MSChartDataGrid::At(int row, int column) const {
  return rows_[Place(row, RowCount(), "row")][Place(column, columns_, "column")];
}

double MSChartDataGrid::GetData(int row, int column) const { return At(row, column).value; }

bool MSChartDataGrid::IsMissing(int row, int column) const { return At(row, column).missing; }

void MSChartDataGrid::SetData(int row, int column, double value, bool missing) {
  rows_[Place(row, RowCount(), "row")][Place(column, columns_, "column")] = {value, missing};
  changed_();
}

std::string MSChartDataGrid::RowLabel(int row, int label) const {
  Place(label, rowLabels_, "row label");
  return LabelOf(rowTexts_[Place(row, RowCount(), "row")], label);
}

void MSChartDataGrid::SetRowLabel(int row, int label, const std::string& text) {
  Place(label, rowLabels_, "row label");
  rowTexts_[Place(row, RowCount(), "row")][label] = text;
  changed_();
}

std::string MSChartDataGrid::ColumnLabel(int column, int label) const {
  Place(label, columnLabels_, "column label");
  return LabelOf(columnTexts_[Place(column, columns_, "column")], label);
}

void MSChartDataGrid::SetColumnLabel(int column, int label, const std::string& text) {
  Place(label, columnLabels_, "column label");
  columnTexts_[Place(column, columns_, "column")][label] = text;
  changed_();
}

std::string MSChartDataGrid::CompositeRowLabel(int row) const {
  return Composite(rowTexts_[Place(row, RowCount(), "row")]);
}

std::string MSChartDataGrid::CompositeColumnLabel(int column) const {
  return Composite(columnTexts_[Place(column, columns_, "column")]);
}

}  // namespace quillon
