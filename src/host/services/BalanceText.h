#pragma once

#include <string>

#include "host/values/Amount.h"

namespace quillon {

/// A balance as accountants write it: "1,250.00 Dr." or " Cr."; a credit is below zero, and zero is a debit.
/// The format key is that of gStd->FormatAmount.
std::string BalanceText(Amount balance, const std::string& key);

}  // namespace quillon
