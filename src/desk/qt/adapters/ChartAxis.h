#pragma once

#include <QString>

namespace quillon {

/// An axis of values: round steps of 1, 2, 2.5 or 5 and powers of ten, over a range that holds 0.
struct ChartAxis {
  double Least = 0;
  double Most = 1;
  double Step = 1;

  /// For figures from `least` to `most`, with about `steps` steps.
  static ChartAxis For(double least, double most, int steps);

  int Steps() const;
  double At(int step) const { return Least + step * Step; }

  /// The label of a step, grouped the Indian way, with the decimals that the steps need.
  QString Label(int step) const;

  /// A figure grouped the Indian way with two decimals, or none when it is whole.
  static QString Figure(double value);
};

}  // namespace quillon
