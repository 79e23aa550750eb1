#pragma once

/// Sentinels of the entries' columns.
namespace quillon::books {

inline constexpr const char* kOpeningBook = "0B";      ///< dBook: an opening balance
inline constexpr const char* kMemorandumBook = "MEM";  ///< dBook: in no balance and no statement

}  // namespace quillon::books
