#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <vector>

namespace quillon {

/// What the sample firm is to be.
struct SampleOptions {
  std::vector<int> Years{2023, 2024};  ///< the calendar years in which they start
  int Vouchers = 2000;  ///< in each year; at least those that show each situation once are made
  std::uint64_t Seed = 1;
  bool IsEmpty = false;                   ///< the tables alone, without accounts and entries
  std::function<void()> OnDay = nullptr;  ///< called for each day that has been written
  bool HasYearBefore = false;             ///< a year of few vouchers stands before the first
};

/// Makes a firm in a folder that holds none: an Indian trading firm with its banks, parties and vouchers. The
/// same options give the same rows. Throws HostError.
void MakeSampleFirm(const std::filesystem::path& folder, const SampleOptions& options);

}  // namespace quillon
