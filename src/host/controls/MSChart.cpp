#include "host/controls/MSChart.h"

namespace quillon {

int MSChart::SeriesCount() const {
  return Plot.DataSeriesInRow ? DataGrid.RowCount() : DataGrid.ColumnCount();
}

int MSChart::PeriodCount() const {
  return Plot.DataSeriesInRow ? DataGrid.ColumnCount() : DataGrid.RowCount();
}

double MSChart::Figure(int series, int period) const {
  return Plot.DataSeriesInRow ? DataGrid.GetData(series, period) : DataGrid.GetData(period, series);
}

bool MSChart::IsMissing(int series, int period) const {
  return Plot.DataSeriesInRow ? DataGrid.IsMissing(series, period) : DataGrid.IsMissing(period, series);
}

std::string MSChart::SeriesLabel(int series) const {
  const std::string label =
      Plot.DataSeriesInRow ? DataGrid.CompositeRowLabel(series) : DataGrid.CompositeColumnLabel(series);
  return label.empty() && SeriesCount() > 1 ? std::to_string(series) : label;
}

std::string MSChart::PeriodLabel(int period) const {
  return Plot.DataSeriesInRow ? DataGrid.CompositeColumnLabel(period) : DataGrid.CompositeRowLabel(period);
}

Control::State MSChart::Describe() const {
  State state = Control::Describe();
  Array labels;
  Array titles;
  Array data;
  Array colors;
  for (int row = 1; row <= DataGrid.RowCount(); ++row) {
    labels.emplace_back(DataGrid.CompositeRowLabel(row));
    Array values;
    for (int column = 1; column <= DataGrid.ColumnCount(); ++column)
      values.emplace_back(DataGrid.IsMissing(row, column) ? Variant::Null()
                                                          : Variant(DataGrid.GetData(row, column)));
    data.emplace_back(std::move(values));
  }
  for (int column = 1; column <= DataGrid.ColumnCount(); ++column)
    titles.emplace_back(DataGrid.CompositeColumnLabel(column));
  for (int series = 1; series <= SeriesCount(); ++series)
    colors.emplace_back(Plot.SeriesCollection(series).DataPoints(-1).Brush.FillColor.Value());
  state.emplace_back("rowlabels", labels);
  state.emplace_back("columnlabels", titles);
  state.emplace_back("data", data);
  state.emplace_back("colors", colors);
  state.emplace_back("seriesinrow", Plot.DataSeriesInRow());
  state.emplace_back("axistitle", Plot.Axis(MSChartPlot::kAxisY).AxisTitle.Text());
  return state;
}

}  // namespace quillon
