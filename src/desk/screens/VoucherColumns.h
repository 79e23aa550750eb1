#pragma once

/// The columns of the lines in voucher entry.
namespace quillon::voucher_col {

inline constexpr int kCode = 0;
inline constexpr int kHead = 1;
inline constexpr int kStation = 2;
inline constexpr int kDebit = 3;
inline constexpr int kCredit = 4;
inline constexpr int kCount = 5;

}  // namespace quillon::voucher_col
