#pragma once

/// Columns of the list of accounts to merge.
namespace quillon::party_col {

inline constexpr int kCode = 0;
inline constexpr int kDuplicateCode = 1;
inline constexpr int kSerial = 2;
inline constexpr int kHead = 3;
inline constexpr int kStation = 4;
inline constexpr int kDuplicateHead = 5;
inline constexpr int kDuplicateStation = 6;
inline constexpr int kCount = 7;

}  // namespace quillon::party_col
