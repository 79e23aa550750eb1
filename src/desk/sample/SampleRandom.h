#pragma once

#include <cstddef>
#include <cstdint>

#include "host/values/Amount.h"

namespace quillon {

/// Numbers that look random and are the same for the same seed on every machine.
class SampleRandom {
 public:
  explicit SampleRandom(std::uint64_t seed) : state_(seed) {}

  /// From 0 to `count` - 1.
  int Below(int count) { return static_cast<int>(Next() % static_cast<std::uint64_t>(count)); }

  int Between(int first, int last) { return first + Below(last - first + 1); }

  /// True in so many of a thousand cases.
  bool InThousand(int cases) { return Below(1000) < cases; }

  template <class List>
  const auto& Pick(const List& list) {
    return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
  }

  /// An amount of trade: mostly some thousands, seldom lakhs; now and then with paise.
  Amount Money() {
    constexpr int kMagnitudes[] = {900, 4000, 4000, 18000, 18000, 60000, 240000};
    const std::int64_t rupees = Between(500, 500 + Pick(kMagnitudes));
    const std::int64_t paise = InThousand(300) ? Below(100) : 0;
    return Amount::OfUnits((rupees * 100 + paise) * 100);
  }

 private:
  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
    return (mixed ^ (mixed >> 31)) >> 1;
  }

  std::uint64_t state_;
};

}  // namespace quillon
