#pragma once

namespace quillon {

/// The row layout of the statement of account's grid, which the screens that are opened on it read and share.
namespace account_col {

inline constexpr int kVoucherId = 0;  ///< 0 or empty on rows that are no entry
inline constexpr int kBookCode = 1;
inline constexpr int kNature = 3;     ///< of the transaction, a number
inline constexpr int kClearedOn = 4;  ///< "dd-MMM-yyyy", empty when not cleared
inline constexpr int kVchSubNo = 5;
inline constexpr int kSerial = 6;
inline constexpr int kVchNo = 7;
inline constexpr int kDate = 8;
inline constexpr int kBook = 9;
inline constexpr int kNarration = 11;
inline constexpr int kDebit = 24;
inline constexpr int kCredit = 25;
inline constexpr int kBalance = 26;
inline constexpr int kClearedEdit = 27;  ///< in the workbench: the editable "Cleared On"
inline constexpr int kReturned = 28;     ///< "Y" when the cheque is returned
inline constexpr int kCount = 29;

}  // namespace account_col

}  // namespace quillon
