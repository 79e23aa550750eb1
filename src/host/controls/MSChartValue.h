#pragma once

#include <functional>
#include <utility>

namespace quillon {

/// Tells a chart that something of it changed.
using MSChartChanged = std::function<void()>;

/// A value inside a chart that tells the chart when it changes.
template <class T>
class MSChartValue {
 public:
  MSChartValue(const MSChartChanged& changed, T initial) : changed_(changed), value_(std::move(initial)) {}
  MSChartValue(const MSChartValue&) = delete;
  MSChartValue& operator=(const MSChartValue& other) { return *this = other.value_; }
  MSChartValue& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    changed_();
    return *this;
  }

  const T& operator()() const { return value_; }
  operator const T&() const { return value_; }

 private:
  const MSChartChanged& changed_;
  T value_;
};

}  // namespace quillon
