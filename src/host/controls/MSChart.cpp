#include "host/controls/MSChart.h"

#include <array>

namespace quillon {

namespace {

constexpr std::array<long, 6> kSeriesColors = {0xB5742E, 0x3C8CE6, 0x4E9A06, 0x3434C4, 0x8C5C8C, 0x808080};

}  // namespace

void MSChart::SetSize(int rows, int columns) {
  if (rows < 0 || columns < 0) throw SubscriptError(Name());
  rows_.assign(static_cast<std::size_t>(rows), {"", std::vector<double>(static_cast<std::size_t>(columns))});
  series_.assign(static_cast<std::size_t>(columns), {});
  ContentChanged();
}

void MSChart::DeleteRows() {
  rows_.clear();
  ContentChanged();
}

const MSChart::RowData& MSChart::RowAt(int row) const {
  if (row < 1 || row > RowCount()) throw SubscriptError(Name() + " row " + std::to_string(row));
  return rows_[static_cast<std::size_t>(row - 1)];
}

const MSChart::Series& MSChart::SeriesAt(int column) const {
  if (column < 1 || column > ColumnCount())
    throw SubscriptError(Name() + " series " + std::to_string(column));
  return series_[static_cast<std::size_t>(column - 1)];
}

double MSChart::GetData(int row, int column) const {
  SeriesAt(column);
  return RowAt(row).values[static_cast<std::size_t>(column - 1)];
}

void MSChart::SetData(int row, int column, double value) {
  GetData(row, column);
  rows_[static_cast<std::size_t>(row - 1)].values[static_cast<std::size_t>(column - 1)] = value;
  ContentChanged();
}

std::string MSChart::RowLabel(int row) const { return RowAt(row).label; }

void MSChart::SetRowLabel(int row, const std::string& label) {
  RowAt(row);
  rows_[static_cast<std::size_t>(row - 1)].label = label;
  ContentChanged();
}

std::string MSChart::ColumnLabel(int column) const { return SeriesAt(column).label; }

void MSChart::SetColumnLabel(int column, const std::string& label) {
  SeriesAt(column);
  series_[static_cast<std::size_t>(column - 1)].label = label;
  ContentChanged();
}

long MSChart::SeriesColor(int column) const {
  const auto own = colors_.find(column);
  return own != colors_.end() ? own->second
                              : kSeriesColors.at(static_cast<std::size_t>(column - 1) % kSeriesColors.size());
}

void MSChart::SetSeriesColor(int column, long color) {
  colors_[column] = color;
  ContentChanged();
}

void MSChart::SetAxisFont(int axis, const quillon::Font& font) {
  axisFonts_.at(axis) = font;
  ContentChanged();
}

void MSChart::SetMarker(int column, bool shown) {
  SeriesAt(column);
  series_[static_cast<std::size_t>(column - 1)].marker = shown;
  ContentChanged();
}

Control::State MSChart::Describe() const {
  State state = Control::Describe();
  Array labels;
  Array titles;
  Array data;
  Array colors;
  for (const RowData& row : rows_) {
    labels.emplace_back(row.label);
    Array values;
    for (const double value : row.values) values.emplace_back(value);
    data.emplace_back(std::move(values));
  }
  for (int column = 1; column <= ColumnCount(); ++column) {
    titles.emplace_back(ColumnLabel(column));
    colors.emplace_back(SeriesColor(column));
  }
  state.emplace_back("rowlabels", labels);
  state.emplace_back("columnlabels", titles);
  state.emplace_back("data", data);
  state.emplace_back("colors", colors);
  return state;
}

}  // namespace quillon
