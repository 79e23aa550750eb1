#pragma once

#include <cstdint>

/// Sentinels of the columns of entries and accounts.
namespace quillon::books {

inline constexpr const char* kOpeningBook = "0B";      ///< dBook: an opening balance
inline constexpr const char* kMemorandumBook = "MEM";  ///< dBook: in no balance and no statement

inline constexpr const char* kClosingType = "zzz";  ///< dTrnType: the books are closed on that date

inline constexpr std::int64_t kCashGroup = 46;              ///< mbshno: cash in hand
inline constexpr std::int64_t kBankGroup = 47;              ///< mbshno: the accounts at banks
inline constexpr std::int64_t kPartyGroups[] = {130, 140};  ///< mbshno: those whom the firm trades with

/// dTrnNature: contra entries, which interest leaves out.
inline constexpr std::int64_t kContraNatures[] = {5002, 5012, 5024, 5031, 5041, 5051};

}  // namespace quillon::books
