#include "desk/qt/adapters/ChartAxis.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double kRounds[] = {1, 2, 2.5, 5, 10};
constexpr double kSlack = 1e-9;  // a range that ends on a step needs no further one

double RoundStep(double least) {
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double round : kRounds) {
    if (round * power >= least * (1 - kSlack)) return round * power;
  }
  return 10 * power;
}

QString Grouped(double value, int decimals) {
  static const QLocale india(QLocale::English, QLocale::India);
  const double unit = std::pow(10, decimals);
  const double rounded = std::round(value * unit) / unit;
  return india.toString(rounded == 0 ? 0.0 : rounded, 'f', decimals);
}

}  // namespace

ChartAxis ChartAxis::For(double least, double most, int steps) {
  least = std::min(0.0, least);
  most = std::max(0.0, most);
  if (least == most) most = 1;
  ChartAxis axis;
  axis.Step = RoundStep((most - least) / std::max(1, steps));
  axis.Least = std::floor(least / axis.Step + kSlack) * axis.Step;
  axis.Most = std::ceil(most / axis.Step - kSlack) * axis.Step;
  return axis;
}

int ChartAxis::Steps() const { return static_cast<int>(std::lround((Most - Least) / Step)); }

QString ChartAxis::Label(int step) const {
  constexpr int kMostDecimals = 6;
  int decimals = 0;
  for (double scaled = Step; decimals < kMostDecimals && std::abs(scaled - std::round(scaled)) > kSlack;
       scaled *= 10)
    ++decimals;
  return Grouped(At(step), decimals);
}

QString ChartAxis::Figure(double value) {
  const bool whole = std::abs(value - std::round(value)) < 0.005;
  return Grouped(value, whole ? 0 : 2);
}

}  // namespace quillon
