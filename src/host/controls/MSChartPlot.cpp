#include "host/controls/MSChartPlot.h"

#include <algorithm>
#include <array>

#include "host/values/Errors.h"

namespace quillon {

namespace {

// The first ones bear white text, as a table of figures has it that is painted in them.
constexpr std::array<long, 12> kColors = {0xB5742E, 0x1466B8, 0x3F7F3A, 0x3434C4, 0x9A5C94, 0x2FBFD9,
                                          0x5B5B5B, 0x9C9A30, 0x7C4A1F, 0x7FB46B, 0x8E7AE0, 0x1F4F8C};

long OwnColor(int series) { return kColors.at(static_cast<std::size_t>(series - 1) % kColors.size()); }

}  // namespace

MSChartFillColor::MSChartFillColor(const MSChartChanged& changed, int series)
    : changed_(changed), value_(OwnColor(series)) {}

void MSChartFillColor::Set(int red, int green, int blue) {
  const auto part = [](int amount) { return static_cast<long>(std::clamp(amount, 0, 0xFF)); };
  value_ = part(red) | part(green) << 8 | part(blue) << 16;
  changed_();
}

MSChartSeries::MSChartSeries(const MSChartChanged& changed, int series)
    : SeriesMarker{{changed, true}}, all_{{{changed, series}}} {}

MSChartSeries::DataPoint& MSChartSeries::DataPoints(int point) {
  if (point != -1) throw SubscriptError("chart point " + std::to_string(point));
  return all_;
}

MSChartAxis::LabelOf& MSChartAxis::Labels(int label) {
  if (label != 1) throw SubscriptError("chart axis label " + std::to_string(label));
  return label_;
}

MSChartPlot::MSChartPlot(const MSChartChanged& changed) : DataSeriesInRow(changed, false), changed_(changed) {
  for (const int axis : {kAxisX, kAxisY, kAxisY2}) axes_[axis] = std::make_unique<MSChartAxis>(changed);
}

MSChartSeries& MSChartPlot::SeriesCollection(int series) {
  if (series < 1) throw SubscriptError("chart series " + std::to_string(series));
  auto& known = series_[series];
  if (!known) known = std::make_unique<MSChartSeries>(changed_, series);
  return *known;
}

MSChartAxis& MSChartPlot::Axis(int axis, int index) {
  const auto known = axes_.find(axis);
  if (known == axes_.end() || index != 1) throw SubscriptError("chart axis " + std::to_string(axis));
  return *known->second;
}

}  // namespace quillon
